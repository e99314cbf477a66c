"""Calls as a type checker sees them: test_stubs.py wants an error in each line that says so, and nowhere else."""
import pickle

import numpy as np
import zmvip
from numpy.typing import NDArray
from zmvip import raw

Bytes = NDArray[np.uint8]


def soften(image: Bytes, out: Bytes | None = None) -> Bytes:
    soft: Bytes = zmvip.filter_box(image, (5, 3), border="mirror", out=out, roi=(2, 2, 9, 9))
    return soft


image = np.zeros((32, 32, 3), np.uint8)
planes = image[..., 0], image[..., 1], image[..., 2]
zmvip.add(image, (1, 2, 3), scale=1)
zmvip.add(planes, planes)
zmvip.add(image, soften(image))
zmvip.convert(image, "uint16")
zmvip.convert(image, np.float32)
zmvip.copy(image, mask=image[..., 0] > 3, keep_alpha=False)
zmvip.remap(image, np.zeros((4, 4), "f4"), np.zeros((4, 4), "f4"), interpolation="linear|smooth_edge")
zmvip.parallel(zmvip.filter_median, image, 3, threads=2, tile=(512, 256))
low, high = zmvip.min_max(image)
curve = zmvip.LUT([0, 128, 256], [255, 127, 0], interpolation="cubic")
pickle.loads(pickle.dumps(curve))(image, out=image)
size = raw.ImageSize(32, 32)
status: int = raw.zmviSet_8u_C1R(0, image.ctypes, image.strides[0], size)
assert status == raw.STATUS_OK and raw.BORDER_REPL
try:
    zmvip.div(image, 0)
except zmvip.Error as error:
    print(error.name.lower(), error.arguments, error.status + 1)

zmvip.filter_box(image)  # wrong
zmvip.filter_box(image, "5")  # wrong
zmvip.filter_box(image, 5, border="wrap")  # wrong
zmvip.filter_box(image, 5, edge="mirror")  # wrong
zmvip.filter_box("photo.png", 5)  # wrong
zmvip.filter_box([[1, 2], [3, 4]], 2)  # wrong
zmvip.filter_box(image, 5, roi=(0, 0, 9))  # wrong
zmvip.filter_box(image, 5, out="soft.png")  # wrong
zmvip.box(image, 5)  # wrong
zmvip.LUT(interpolation=None)  # wrong
zmvip.parallel("filter_box", image, 5)  # wrong
zmvip.copy(image, keep_alpha="yes")  # wrong
raw.zmviSet_8u_C1R(0, image.ctypes, "96", size)  # wrong
raw.zmviSet_9u_C1R(0, image.ctypes, 96, size)  # wrong
