"""Image processing on NumPy arrays: each family of the library zmvip under one name.

An image is an array (h, w), (h, w, 3) or (h, w, 4), or a tuple of 2-D arrays, its planes.  help(zmvip.add) tells what a
function computes and which types it takes; zmvip.raw has every function of the library as it is in C.
"""
from . import _api
from ._library import Error, StatusWarning

__version__ = _api.VERSION


def _make_function(name):
    """A function of the package, by what _api says of it."""
    import inspect
    from ._docs import TEXTS
    from ._function import Function
    engine = Function(name)

    def call(*args, **keywords):
        return engine(*args, **keywords)

    parameters = [inspect.Parameter(n, inspect.Parameter.POSITIONAL_OR_KEYWORD, default=inspect.Parameter.empty
                                    if d is None else eval(d, {})) for n, _, d in engine.rows]
    parameters += [inspect.Parameter(n, inspect.Parameter.KEYWORD_ONLY, default=eval(d, {})) for n, d in engine.extras]
    call.__signature__ = inspect.Signature(parameters)
    call.__name__ = call.__qualname__ = name
    call.__module__, call.__doc__, call.engine = __name__, TEXTS[name], engine
    return call


def _make_class(name):
    """The class that keeps the arguments and the spec objects of a function."""
    from ._spec import spec_class
    return spec_class(name, globals().get(_api.SPECS[name]) or __getattr__(_api.SPECS[name]), __name__)


def __getattr__(name):
    if name in _api.FUNCTIONS:
        found = _make_function(name)
    elif name in _api.SPECS:
        found = _make_class(name)
    elif name == "parallel":
        from ._parallel import parallel as found
    elif name in ("dask", "raw"):
        from importlib import import_module
        found = import_module("." + name, __name__)
    else:
        raise AttributeError(f"zmvip has no {name}")
    globals()[name] = found
    return found


def __dir__():
    return sorted({*globals(), *_api.FUNCTIONS, *_api.SPECS, "dask", "parallel", "raw"})
