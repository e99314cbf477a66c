"""Every function of the library under its own name.  A pointer is an address, None, or what ctypes passes as one, such as
array.ctypes; structs stand here under their names too; a status is returned, never raised."""
from . import _api
from ._library import ctype, exported

globals().update({name: ctype(name) for name in _api.STRUCTS})
globals().update(_api.CONSTANTS)
globals().update({name: value for value, (name, _) in _api.STATUSES.items()})


def __getattr__(name):
    try:
        function = exported(name)
    except (KeyError, AttributeError):
        raise AttributeError(f"zmvip.raw has no {name}") from None
    globals()[name] = function
    return function


def __dir__():
    return sorted({*globals(), *(row[0] for rows in _api.FAMILIES.values() for row in rows)})
