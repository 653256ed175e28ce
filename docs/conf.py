"""How the pages of this folder become a site; script/docs runs it."""
import json
import os
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "docs"))

import project_fields  # noqa: E402  (lies beside this file)

project = "Ostrel"
author = "The authors of Ostrel"
copyright = "the authors of Ostrel"  # the name that the generator reads  # noqa: A001

extensions = ["myst_parser", "breathe"]
source_suffix = {".md": "markdown", ".rst": "restructuredtext"}
exclude_patterns = ["README.md", "project_fields.md"]
myst_enable_extensions = ["colon_fence", "deflist"]
myst_heading_anchors = 3
suppress_warnings = ["myst.header"]

breathe_projects = {"ostrel": os.environ["OSTREL_DOXYGEN_XML"]}
breathe_default_project = "ostrel"

html_theme = "furo"
html_title = "Ostrel"
html_static_path = []
html_copy_source = False
highlight_language = "none"

REFERENCE = pathlib.Path(__file__).resolve().parent / "reference"


def first_line(header):
    """What a header holds, as its second line says it."""
    line = header.read_text(encoding="utf-8").splitlines()[1]
    return line.split("@file", 1)[1].split("Room:")[0].strip().rstrip(".")


def write_reference(_app):
    """One page for each public header, made from what the headers say of themselves."""
    headers = sorted((ROOT / "include" / "ostrel").glob("*.h"))
    pages = [header for header in headers if header.name != "ostrel.h"]
    REFERENCE.mkdir(exist_ok=True)
    for header in pages:
        write_if_new(REFERENCE / f"{header.stem}.rst", "\n".join([
            header.name, "=" * len(header.name), "", first_line(header) + ".", "",
            f".. doxygenfile:: ostrel/{header.name}", "   :sections: define enum func typedef var "
            "innerclass public-func public-attrib public-type public-static-func "
            "public-static-attrib user-defined briefdescription detaileddescription", ""]))
    lines = ["# Reference of the library", "",
             "One page for each public header. Units are those of the library: mm, N, N/mm², rad.",
             "", "| header | what it holds |", "| --- | --- |"]
    lines += [f"| [{page.name}](reference/{page.stem}) | {first_line(page)} |" for page in pages]
    lines += ["", "```{toctree}", ":hidden:", ""]
    lines += [f"reference/{page.stem}" for page in pages]
    lines += ["```", ""]
    write_if_new(REFERENCE.parent / "reference.md", "\n".join(lines))


def write_project_fields(_app):
    """The fields of a project file, included by its page."""
    schema = json.loads((ROOT / "host/schema/project.schema.json").read_text(encoding="utf-8"))
    write_if_new(ROOT / "docs/project_fields.md", project_fields.fields_page(schema))


def write_if_new(path, text):
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def setup(app):
    app.connect("builder-inited", write_reference)
    app.connect("builder-inited", write_project_fields)
