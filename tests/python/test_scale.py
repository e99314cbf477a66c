"""The examples of many machines and of images larger than memory; a worker that dies midway.  77: there is no dask."""
import os
import resource
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import numpy as np
import zmvip

try:
    import dask.array
    import dask.distributed
    import zmvip.dask
except ImportError:
    print("skipped: needs python3-dask and python3-distributed")
    sys.exit(77)

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "examples")


def run(name, *args, **keywords):
    return subprocess.run([sys.executable, os.path.join(EXAMPLES, name), *args], check=True, **keywords)


class Scale(unittest.TestCase):
    def test_cluster(self):
        self.assertEqual(run("cluster.py", capture_output=True, text=True).stdout.count("equal to the whole"), 3)

    def test_a_worker_dies(self):
        image = np.random.default_rng(1).integers(0, 256, (3000, 3000), np.uint8)
        with dask.distributed.Client(n_workers=2, threads_per_worker=1, dashboard_address=None) as client:
            blocks = dask.array.from_array(image, chunks=(100, 100))
            futures = client.compute([zmvip.dask.filter_box(blocks, 201), zmvip.dask.histogram(blocks, [0, 9, 256])])
            victim = next(iter(client.run(os.getpid).values()))
            time.sleep(1)
            self.assertFalse(all(f.done() for f in futures))
            os.kill(victim, signal.SIGKILL)
            filtered, counts = client.gather(futures)
        self.assertTrue(np.array_equal(filtered, zmvip.filter_box(image, 201)))
        self.assertTrue(np.array_equal(counts, zmvip.histogram(image, [0, 9, 256])))

    def test_larger_than_memory(self):
        """2 GiB where a process may have 512 MiB of data."""
        rows, columns, side, part = 32768, 65536, 5, 300
        with tempfile.TemporaryDirectory() as folder:
            source, target = os.path.join(folder, "in.npy"), os.path.join(folder, "out.npy")
            image = np.lib.format.open_memmap(source, mode="w+", dtype=np.uint8, shape=(rows, columns))
            for y in range(0, rows, 256):
                image[y:y + 256] = (np.arange(columns) * 7 + (np.arange(y, y + 256) ** 2)[:, None]).astype(np.uint8)
            limit = lambda: resource.setrlimit(resource.RLIMIT_DATA, (512 << 20, 512 << 20))
            run("huge.py", source, target, str(side), preexec_fn=limit)
            result = np.load(target, mmap_mode="r")
            for y in (0, 12345, rows - part):
                low, high = max(0, y - side), min(rows, y + part + side)
                whole = zmvip.filter_box(np.asarray(image[low:high]), side)[y - low:y - low + part]
                self.assertTrue(np.array_equal(whole, result[y:y + part]), y)


if __name__ == "__main__":
    unittest.main()
