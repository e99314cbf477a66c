"""A photograph in blocks on several machines: cluster.py [SCHEDULER], for example tcp://host:8786.

Without a scheduler two worker processes are started here.  The results are those of one call, to the bit; docs/scale.md
tells how to start a scheduler and workers elsewhere.
"""
import sys

import dask.array
import numpy as np
import zmvip
import zmvip.dask
from dask.distributed import Client


def main():
    client = Client(sys.argv[1]) if len(sys.argv) > 1 else Client(n_workers=2, threads_per_worker=1, dashboard_address=None)
    y, x = np.mgrid[:1500, :2000]
    photo = (np.hypot(x - 900, y - 700) * (1 + np.arctan2(y - 700, x - 900))).astype(np.int64).astype(np.uint8)
    blocks = dask.array.from_array(photo, chunks=(400, 500))
    with client:
        print(len(client.scheduler_info()["workers"]), "workers")
        for name, lazy, whole in (
                ("means of 31 x 31", zmvip.dask.filter_box(blocks, 31), zmvip.filter_box(photo, 31)),
                ("half the size", zmvip.dask.resize_linear(blocks, (1000, 750)), zmvip.resize_linear(photo, (1000, 750))),
                ("histogram", zmvip.dask.histogram(blocks, [0, 64, 128, 256]), zmvip.histogram(photo, [0, 64, 128, 256]))):
            equal = np.array_equal(client.compute(lazy).result(), whole)
            print(f"{name}: {'equal to the whole' if equal else 'DIFFERS'}")
            if not equal:
                sys.exit(1)


if __name__ == "__main__":
    main()
