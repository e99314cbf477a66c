"""An image that is larger than memory: huge.py IN.npy OUT.npy [SIDE] writes the means of SIDE x SIDE pixels (31).

Both files are mapped; tiles of the result are worked on all cores, and only what they touch is in memory.
"""
import sys

import numpy as np
import zmvip


def main():
    image = np.load(sys.argv[1], mmap_mode="r")
    out = np.lib.format.open_memmap(sys.argv[2], mode="w+", dtype=image.dtype, shape=image.shape)
    zmvip.parallel(zmvip.filter_box, np.asarray(image), int(sys.argv[3]) if len(sys.argv) > 3 else 31, out=np.asarray(out))
    out.flush()


if __name__ == "__main__":
    main()
