# How Sphinx makes the pages that tools/reference.py writes: nothing from elsewhere, so that they can be read offline.
import re
from pathlib import Path

from sphinx import addnodes

project = "zmvIP"
copyright = "the zmvIP authors"
html_title = "zmvIP"
extensions = ["myst_parser"]
myst_heading_anchors = 3
html_theme = "furo"
html_static_path = ["_static"]
html_css_files = ["site.css"]
html_copy_source = False
html_show_search_summary = False  # would be fetched, which a page in a file may not


def note_functions(app, doctree):
    """What is in the index can be searched for, and is found where it stands."""
    for index in doctree.findall(addnodes.index):
        for _, name, target, *_ in index["entries"]:
            app.env.get_domain("std").note_object("function", name, target)


def keep_inside(app, exception):
    """Debian's theme takes a style sheet from the root of a web server."""
    style = Path(app.outdir, "_static/styles/furo.css")
    style.write_text(re.sub(r"@import url\(/[^)]*\);", "", style.read_text()))


def setup(app):
    app.add_object_type("function", "function")
    app.connect("doctree-read", note_functions)
    app.connect("build-finished", keep_inside)
    return {"parallel_read_safe": True}
