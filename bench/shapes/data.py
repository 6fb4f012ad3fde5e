# SPDX-License-Identifier: Apache-2.0
"""Shapes of data: messages, conversions and keys, as large as they come."""

from shapes.odx import by_id, container, dictionary, ident, layer, many, message, service, structure, value, wrap

TYPE = '<DIAG-CODED-TYPE BASE-DATA-TYPE="A_UINT32" xsi:type="STANDARD-LENGTH-TYPE"><BIT-LENGTH>8</BIT-LENGTH>' \
    "</DIAG-CODED-TYPE>"


def base(**parts):
    return {"c.odx-d": container({"BASE-VARIANTS": layer("BASE-VARIANT", "V0", **parts)})}


def constant(name, position="", coded="34"):
    place = wrap("BYTE-POSITION", position)
    return f'<PARAM xsi:type="CODED-CONST"><SHORT-NAME>{name}</SHORT-NAME>{place}<CODED-VALUE>{coded}</CODED-VALUE>' \
        f"{TYPE}</PARAM>"


def repeated(name, position):
    return f'<PARAM xsi:type="MATCHING-REQUEST-PARAM"><SHORT-NAME>{name}</SHORT-NAME>' \
        f"<REQUEST-BYTE-POS>{position}</REQUEST-BYTE-POS><BYTE-LENGTH>1</BYTE-LENGTH></PARAM>"


def limits(lower, upper):
    return f"<LOWER-LIMIT>{lower}</LOWER-LIMIT><UPPER-LIMIT>{upper}</UPPER-LIMIT>"


def parameters_on_one_another(count):
    """Parameters that all share one byte."""
    params = many(count, lambda index: constant(f"P{index}", "0"))
    return base(REQUESTS=message("REQUEST", "Request", params))


def services_of_one_response(count):
    """Services that share a long request and a response which repeats all its bytes and more."""
    return base(
        DIAG_COMMS=many(count, lambda index: service(f"S{index}", "Request", "Response")),
        REQUESTS=message("REQUEST", "Request", many(count, lambda index: constant(f"P{index}"))),
        POS_RESPONSES=message("POS-RESPONSE", "Response", many(count, lambda index: repeated(f"M{index}", index + 1))),
    )


def requests_alike(count):
    """Requests that no byte tells apart, over a chain of STRUCTUREs that all contain."""
    chain = lambda index: structure(f"T{index}", constant("P") + value("V", by_id(f"T{index + 1}")))
    last = structure(f"T{count}", constant("P"))
    request = lambda index: message("REQUEST", f"R{index}", constant("Sid") + value("V", by_id("T0")))
    return base(
        DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=many(count, chain) + last),
        DIAG_COMMS=many(count, lambda index: service(f"S{index}", f"R{index}")),
        REQUESTS=many(count, request),
    )


def scales_on_one_another(count):
    """A conversion whose COMPU-SCALEs all share values with the first, and a MUX with such CASEs."""
    scale = lambda index: wrap(
        "COMPU-SCALE", limits(index, count) + "<COMPU-CONST><VT>x</VT></COMPU-CONST>")
    dop = ident(
        "DATA-OBJECT-PROP",
        "Dop",
        wrap("COMPU-METHOD", "<CATEGORY>TEXTTABLE</CATEGORY>"
             + wrap("COMPU-INTERNAL-TO-PHYS", wrap("COMPU-SCALES", many(count, scale))))
        + TYPE + '<PHYSICAL-TYPE BASE-DATA-TYPE="A_UNICODE2STRING"/>',
    )
    case = lambda index: f"<CASE><SHORT-NAME>C{index}</SHORT-NAME>{limits(0, index)}</CASE>"
    mux = ident(
        "MUX", "Mux",
        "<BYTE-POSITION>1</BYTE-POSITION><SWITCH-KEY><BYTE-POSITION>0</BYTE-POSITION>"
        + by_id("Dop", "DATA-OBJECT-PROP-REF") + "</SWITCH-KEY>" + wrap("CASES", many(count, case)),
    )
    return base(DIAG_DATA_DICTIONARY_SPEC=dictionary(dop, mux=mux))


def keys_that_are_equal(count):
    """DTCs of one TROUBLE-CODE and rows of one KEY."""
    dtc = lambda index: f'<DTC ID="D{index}"><SHORT-NAME>D{index}</SHORT-NAME><TROUBLE-CODE>1</TROUBLE-CODE>' \
        "<TEXT>x</TEXT></DTC>"
    faults = ident(
        "DTC-DOP", "Faults",
        TYPE + '<PHYSICAL-TYPE BASE-DATA-TYPE="A_UINT32"/><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>'
        + wrap("DTCS", many(count, dtc)),
    )
    row = lambda index: ident("TABLE-ROW", f"R{index}", "<KEY>1</KEY>" + by_id("T", "STRUCTURE-REF"))
    return base(DIAG_DATA_DICTIONARY_SPEC=wrap("DTC-DOPS", faults)
                + dictionary(structures=structure("T", constant("P")), tables=ident("TABLE", "Table", many(count, row))))
