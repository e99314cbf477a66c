"""The library itself: opened by its SONAME, so that the loader picks the build for this processor; its structs, its
functions by name, and its errors."""
import ctypes
from functools import lru_cache

from . import _api

LIBRARY = ctypes.CDLL("libzmvip.so.1")  # CDLL: calls leave the interpreter lock free

_TYPES = {"int": ctypes.c_int, "int8_t": ctypes.c_int8, "int16_t": ctypes.c_int16, "int32_t": ctypes.c_int32,
          "int64_t": ctypes.c_int64, "uint8_t": ctypes.c_uint8, "uint16_t": ctypes.c_uint16, "uint32_t": ctypes.c_uint32,
          "uint64_t": ctypes.c_uint64, "float": ctypes.c_float, "double": ctypes.c_double, "const char*": ctypes.c_char_p,
          "char[4]": ctypes.c_char * 4, "void": None, "StatusCode": ctypes.c_int}
for _name, _fields in _api.STRUCTS.items():
    _TYPES[_name] = type(_name, (ctypes.Structure,), {"_fields_": [(field, _TYPES[kind]) for field, kind in _fields]})

_MEMBERS = {row[0]: row for rows in _api.FAMILIES.values() for row in rows}
_RESULTS = {"const LibraryVersion*": ctypes.POINTER(_TYPES["LibraryVersion"])}


def ctype(text):
    """The ctypes type of a C type that is not a pointer; None of one that is."""
    return _TYPES.get(text)


@lru_cache(None)
def exported(name):
    """A function of the library.  Pointers are addresses, or what ctypes passes as such; statuses are returned."""
    row = _MEMBERS[name]
    function = getattr(LIBRARY, name)
    function.argtypes = [_TYPES.get(kind, ctypes.c_void_p) for _, kind, *_ in _api.SHAPES[row[1]]]
    result = row[8]
    function.restype = _RESULTS.get(result, _TYPES.get(result, ctypes.c_void_p))
    return function


class Error(ValueError):
    """What the library refused: function, arguments, condition, status and its name, and the member in C that said so."""

    def __init__(self, function, arguments, condition, status, name, member):
        super().__init__(function, arguments, condition, status, name, member)
        self.function, self.arguments, self.condition = function, arguments, condition
        self.status, self.name, self.member = status, name, member

    def __str__(self):
        concerned = f" {' or '.join(self.arguments)}:" if self.arguments else ""
        return f"{self.function}:{concerned} {self.condition} ({self.name} of {self.member})"


class StatusWarning(UserWarning):
    """What the library did, but warns of."""


def _said(rows, name, status):
    """What the facts of a family say of a status, or else its own sentence."""
    fitting = [row for row in rows if row[0] == name]
    return ("; or: ".join(row[-1].replace("\n", " ") for row in fitting)) or _api.STATUSES[status][1], fitting


def refused(function, member, family, status):
    """The error of a function that has a name, and names of the arguments in C by those in Python."""
    name = _api.STATUSES[status][0]
    condition, rows = _said(_api.FACTS[family]["refusals"], name, status)
    arguments = dict.fromkeys(function.called(a) for row in rows for a in row[1])
    return Error(function.name, tuple(arguments), condition, status, name, member)


def warned(function, member, family, status):
    name = _api.STATUSES[status][0]
    return StatusWarning(f"{function.name}: {_said(_api.FACTS[family]['warnings'], name, status)[0]} ({name} of {member})")
