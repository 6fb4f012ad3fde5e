# SPDX-License-Identifier: Apache-2.0
"""ODX as text, as short as the shapes of databases allow. Short names are also the IDs unless stated otherwise."""

HEAD = (
    '<?xml version="1.0" encoding="UTF-8"?>\n'
    '<ODX MODEL-VERSION="2.0.1" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
)


def many(count, make):
    """make(0), make(1), ... in one text."""
    return "\n".join(make(index) for index in range(count))


def wrap(tag, content):
    """The element, or nothing where it would be empty."""
    return f"<{tag}>{content}</{tag}>" if content else ""


def ident(tag, name, content="", id_=None, attributes=""):
    """An element with an ID and a short name."""
    return f'<{tag} ID="{id_ or name}"{attributes}><SHORT-NAME>{name}</SHORT-NAME>{content}</{tag}>'


def document(category):
    return f"{HEAD}{category}</ODX>\n"


def container(layers, name="C"):
    """A document with a DIAG-LAYER-CONTAINER; `layers` is a dictionary from the wrappers' tags to layers in text."""
    wrapped = "".join(wrap(tag, layers[tag]) for tag in LAYERS if tag in layers)
    return document(ident("DIAG-LAYER-CONTAINER", name, wrapped))


LAYERS = ("PROTOCOLS", "FUNCTIONAL-GROUPS", "ECU-SHARED-DATAS", "BASE-VARIANTS", "ECU-VARIANTS")
PARTS = ("FUNCT-CLASSS", "DIAG-DATA-DICTIONARY-SPEC", "DIAG-COMMS", "REQUESTS", "POS-RESPONSES", "NEG-RESPONSES",
         "GLOBAL-NEG-RESPONSES", "COMPARAM-REFS", "IMPORT-REFS", "DIAG-VARIABLES", "ECU-VARIANT-PATTERNS",
         "DYN-DEFINED-SPEC", "ACCESS-LEVELS", "PARENT-REFS")


def layer(tag, name, id_=None, **parts):
    """A layer; the parts are named like their wrappers with underscores: DIAG_COMMS=..."""
    named = {key.replace("_", "-"): content for key, content in parts.items()}
    ordered = "".join(wrap(part, named.pop(part, "")) for part in PARTS)
    assert not named, named
    return ident(tag, name, ordered, id_)


def parent(kind, name, exclusions=()):
    excluded = "".join(
        f'<NOT-INHERITED-DIAG-COMM><DIAG-COMM-SNREF SHORT-NAME="{exclusion}"/></NOT-INHERITED-DIAG-COMM>'
        for exclusion in exclusions
    )
    inside = wrap("NOT-INHERITED-DIAG-COMMS", excluded)
    return f'<PARENT-REF ID-REF="{name}" xsi:type="{kind}-REF">{inside}</PARENT-REF>'


def dop(name, id_=None):
    return ident(
        "DATA-OBJECT-PROP",
        name,
        "<COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>"
        '<DIAG-CODED-TYPE BASE-DATA-TYPE="A_UINT32" xsi:type="STANDARD-LENGTH-TYPE"><BIT-LENGTH>8</BIT-LENGTH>'
        '</DIAG-CODED-TYPE><PHYSICAL-TYPE BASE-DATA-TYPE="A_UINT32"/>',
        id_,
    )


def value(name, reference):
    """A VALUE parameter; `reference` is made by `by_id` or `by_name`."""
    return f'<PARAM xsi:type="VALUE"><SHORT-NAME>{name}</SHORT-NAME>{reference}</PARAM>'


def by_id(name, tag="DOP-REF"):
    return f'<{tag} ID-REF="{name}"/>'


def by_name(name, tag="DOP-SNREF"):
    return f'<{tag} SHORT-NAME="{name}"/>'


def structure(name, params, id_=None):
    return ident("STRUCTURE", name, wrap("PARAMS", params), id_)


def message(tag, name, params, id_=None):
    return ident(tag, name, wrap("PARAMS", params), id_)


def service(name, request="", response="", id_=None, head=""):
    references = (by_id(request, "REQUEST-REF") if request else "") + wrap(
        "POS-RESPONSE-REFS", by_id(response, "POS-RESPONSE-REF") if response else ""
    )
    return ident("DIAG-SERVICE", name, f"{head}<AUDIENCE/>{references}", id_)


def dictionary(dops="", structures="", env_data_descs="", tables="", **others):
    fields = "".join(wrap(key.upper().replace("_", "-") + "S", content) for key, content in others.items())
    return (
        wrap("ENV-DATA-DESCS", env_data_descs)
        + wrap("DATA-OBJECT-PROPS", dops)
        + wrap("STRUCTURES", structures)
        + fields
        + wrap("TABLES", tables)
    )
