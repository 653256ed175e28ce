"""The fields of a project file as a page, made from the schema that the program checks it by.

Every keyword of the schema is either shown or known to need no words; a new one stops the build of
the site, so that the page cannot fall behind the schema.
"""
import re

SHOWN = {"description", "type", "properties", "required", "items", "enum", "const", "default",
         "minimum", "exclusiveMinimum", "maximum", "exclusiveMaximum", "minItems", "maxItems",
         "minLength", "anyOf", "$ref", "if", "then", "else", "additionalProperties"}
FRAME = {"$schema", "$comment", "title", "definitions"}  # of the whole file

INTRODUCTION = {"comment"}  # fields that the introduction of the page explains

KINDS = {"string": "text", "number": "number", "integer": "whole number", "boolean": "true or false",
         "object": "object", "array": "list", "null": "null"}


def fields_page(schema):
    """The page, as Markdown: one section for each object, one line for each field."""
    lines = []
    for path, part in objects(schema, ""):
        lines += section(path, part, schema)
    for name, part in schema["definitions"].items():
        for path, inner in objects(part, name):
            lines += section(path, inner, schema)
    return "\n".join(lines) + "\n"


def resolved(field, path, schema):
    """The field with what it refers to under `definitions`, and the path of its section."""
    if "$ref" not in field:
        return field, path
    name = field["$ref"].rsplit("/", 1)[1]
    return schema["definitions"][name], name


def objects(part, path):
    """Every object with its path, the outer before the inner; what has a definition stands there."""
    if "$ref" in part:
        return
    unknown = set(part) - SHOWN - FRAME
    if unknown:
        raise ValueError(f"{path or 'project'}: no words for {sorted(unknown)} of the schema")
    if "properties" in part:
        yield path, part
        for name, field in part["properties"].items():
            if name not in INTRODUCTION:
                yield from objects(field, f"{path}.{name}" if path else name)
    if isinstance(part.get("additionalProperties"), dict):
        yield from objects(part["additionalProperties"], f"{path}.NAME")
    if "items" in part:
        yield from objects(part["items"], f"{path}[]")
    for choice in part.get("anyOf", []) if "properties" not in part else []:
        yield from objects(choice, path)


def section(path, part, schema):
    """Heading, sentence and table of one object."""
    lines = [f"### {path or 'project'}", "", part.get("description", ""), ""]
    lines += ["| field | value | default | meaning |", "| --- | --- | --- | --- |"]
    needed = set(part.get("required", []))
    for name, field in part["properties"].items():
        if name in INTRODUCTION:
            continue
        inner = f"{path}.{name}" if path else name
        default = "needed" if name in needed else default_of(field)
        meaning = field.get("description") or resolved(field, inner, schema)[0]["description"]
        lines.append(f"| `{name}` | {value_of(field, inner, schema)} | {default} | {meaning} |")
    lines.append("")
    for rule in rules(part):
        lines += [rule, ""]
    return lines


def default_of(field):
    if "default" not in field:
        return ""
    value = field["default"]
    if isinstance(value, bool):
        return "true" if value else "false"
    return f"`{value}`" if isinstance(value, str) else f"{value:g}"


def value_of(field, path, schema):
    """What may stand there, in a few words."""
    field, path = resolved(field, path, schema)
    if "const" in field:
        return f"`{str(field['const']).lower()}`"
    if "enum" in field:
        return ", ".join(f"`{choice}`" for choice in field["enum"])
    if "anyOf" in field and "properties" not in field:
        choices = [value_of(choice, path, schema) for choice in field["anyOf"]]
        return " or ".join(dict.fromkeys(choices))
    kinds = field["type"] if isinstance(field["type"], list) else [field["type"]]
    if kinds == ["array"]:
        return list_of(field, path, schema)
    if kinds == ["object"]:
        return object_of(field, path, schema)
    return " or ".join(KINDS[kind] for kind in kinds) + limits(field)


def object_of(field, path, schema):
    """A link to the section of an object; of one with names of its own, what these hold."""
    if "properties" in field:
        return f"[object](#{slug(path)})"
    return f"by name: {value_of(field['additionalProperties'], path, schema)}"


def slug(path):
    """The anchor of a heading."""
    return re.sub(r"[^\w-]", "", path.lower())


def list_of(field, path, schema):
    inner = value_of(field["items"], f"{path}[]", schema)
    least, most = field.get("minItems"), field.get("maxItems")
    count = ""
    if least is not None:
        count = f" of {least}" if least == most else f" of {least} or more"
    return f"list{count}: {inner}"


def limits(field):
    words = []
    for keyword, sign in (("exclusiveMinimum", ">"), ("minimum", "≥"),
                          ("exclusiveMaximum", "<"), ("maximum", "≤")):
        if keyword in field:
            words.append(f"{sign} {field[keyword]:g}")
    return " " + ", ".join(words) if words else ""


def rules(part):
    """What a condition of the schema asks for and shuts out, as sentences."""
    if "if" not in part:
        return
    condition, opposite = condition_of(part["if"])
    for words, branch in ((condition, part.get("then", {})), (opposite, part.get("else", {}))):
        asked = sorted(names_asked(branch, ""))
        shut = sorted(names_shut(branch, ""))
        if asked:
            yield f"Needed {words}: {listed(asked)}."
        if shut:
            yield f"Not allowed {words}: {listed(shut)}."
        yield from rules(branch)


def condition_of(part):
    """The condition and its opposite."""
    if "required" in part:
        name = part["required"][0]
        return f"where `{name}` is given", f"where `{name}` is not given"
    name, field = next(iter(part["properties"].items()))
    value = field["const"]
    return f"where `{name}` is `{value}`", f"where `{name}` is not `{value}`"


def names_asked(branch, prefix):
    for name in branch.get("required", []):
        yield prefix + name
    yield from inner_names(branch, prefix, names_asked)


def names_shut(branch, prefix):
    for name, field in branch.get("properties", {}).items():
        if field is False:
            yield prefix + name
    yield from inner_names(branch, prefix, names_shut)


def inner_names(branch, prefix, names):
    for name, field in branch.get("properties", {}).items():
        if not isinstance(field, dict):
            continue
        yield from names(field, f"{prefix}{name}.")
        if isinstance(field.get("items"), dict):
            yield from names(field["items"], f"{prefix}{name}[].")


def listed(names):
    return ", ".join(f"`{name}`" for name in names)
