"""Declarations and calls in C as text."""
import re


def declared(kind, name):
    """An argument or a variable: const double[2][3] coeffs is const double coeffs[2][3]."""
    base, bounds = re.fullmatch(r"([^\[]*)(.*)", kind).groups()
    return f"{base} {name}{bounds}"


def wrapped(head, arguments, tail, indent=4, width=84):
    """A call or a prototype, in lines that end between arguments."""
    lines, line = [], head
    for i, a in enumerate(arguments):
        a += ", " if i + 1 < len(arguments) else tail
        if len(line + a.rstrip()) > width:
            lines.append(line.rstrip())
            line = " " * indent
        line += a
    return "\n".join([*lines, line if arguments else head + tail])
