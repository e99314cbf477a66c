"""Classes of spec objects: arguments of a function, kept for many calls and threads."""
import inspect

import numpy as np


class Spec:
    """Keeps what is made of these arguments.  Calls take images and all other arguments of the function."""

    engine = function = None

    def __init__(self, *args, **keywords):
        names = [row[0] for row in self.engine.rows[self.engine.images:]]
        if len(args) > len(names):
            raise TypeError(f"{type(self).__name__}: takes {', '.join(names)}")
        given = {**dict(zip(names, args)), **keywords}
        unknown = [n for n in given if n not in names and n != "keep_alpha"]
        if unknown or len(given) < len(args) + len(keywords):
            raise TypeError(f"{type(self).__name__}: takes {', '.join(names)}, each once"
                            + (f", not {unknown[0]}" if unknown else ""))
        self.params = {n: v.copy() if isinstance(v, np.ndarray) else v for n, v in given.items() if v is not None}
        self.objects = {}

    def __call__(self, *args, **keywords):
        return self.function(*args, **keywords, spec=self)

    def __repr__(self):
        return f"zmvip.{type(self).__name__}({', '.join(f'{n}={v!r}' for n, v in self.params.items())})"

    def __reduce__(self):
        return _again, (type(self), self.params)


def _again(kind, params):
    return kind(**params)


def spec_class(name, function, module):
    signature = inspect.Signature([p for p in function.__signature__.parameters.values()][function.engine.images:])
    return type(name, (Spec,), {"engine": function.engine, "function": staticmethod(function), "__module__": module,
                                "__doc__": f"{Spec.__doc__}\n\n{function.__doc__}", "__signature__": signature})
