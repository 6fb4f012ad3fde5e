# SPDX-License-Identifier: Apache-2.0
"""Shapes of documents: flash data, jobs, many documents, and unusual XML."""

from shapes.odx import (by_id, by_name, container, dictionary, document, dop, ident, layer, many, message, service,
                        value, wrap)


def flash_sessions(count):
    """Sessions and idents, and as many references by their short names."""
    session = lambda index: ident(
        "SESSION",
        f"S{index}",
        wrap(
            "EXPECTED-IDENTS",
            ident(
                "EXPECTED-IDENT", f"I{index}", wrap("IDENT-VALUES", '<IDENT-VALUE TYPE="A_UINT32">1</IDENT-VALUE>')
            ),
        )
        + '<DATABLOCK-REFS><DATABLOCK-REF ID-REF="Block"/></DATABLOCK-REFS>',
    )
    block = '<DATABLOCK ID="Block" TYPE="CODE"><SHORT-NAME>Block</SHORT-NAME><FLASHDATA-REF ID-REF="Data"/></DATABLOCK>'
    content = '<DATAFORMAT SELECTION="BINARY"/><DATA>00</DATA>'
    data = ident("FLASHDATA", "Data", content, attributes=' xsi:type="INTERN-FLASHDATA"')
    mem = ident(
        "ECU-MEM",
        "Mem",
        wrap("MEM", wrap("SESSIONS", many(count, session)) + wrap("DATABLOCKS", block) + wrap("FLASHDATAS", data)),
    )
    desc = lambda index: (
        f'<SESSION-DESC DIRECTION="DOWNLOAD"><SHORT-NAME>D{index}</SHORT-NAME>'
        + by_name(f"S{index}", "SESSION-SNREF") + by_name("Service", "DIAG-COMM-SNREF") + "</SESSION-DESC>"
    )
    ident_desc = lambda index: (
        "<IDENT-DESC>" + by_name("Service", "DIAG-COMM-SNREF") + by_name(f"I{index}", "IDENT-IF-SNREF")
        + by_name("P", "OUT-PARAM-IF-SNREF") + "</IDENT-DESC>"
    )
    connector = ident(
        "ECU-MEM-CONNECTOR",
        "Connector",
        wrap("SESSION-DESCS", many(count, desc)) + wrap("IDENT-DESCS", many(count, ident_desc))
        + by_id("Mem", "ECU-MEM-REF") + wrap("LAYER-REFS", by_id("V0", "LAYER-REF")),
    )
    flash = ident("FLASH", "Flash", wrap("ECU-MEMS", mem) + wrap("ECU-MEM-CONNECTORS", connector))
    base = layer(
        "BASE-VARIANT",
        "V0",
        DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop")),
        DIAG_COMMS=service("Service", response="Response"),
        POS_RESPONSES=message("POS-RESPONSE", "Response", value("P", by_id("Dop"))),
    )
    return {"c.odx-d": container({"BASE-VARIANTS": base}), "f.odx-f": document(flash)}


def connectors(count):
    """ECU-MEM-CONNECTORs that all refer to the same layers."""
    base = layer("BASE-VARIANT", "V0", DIAG_COMMS=service("Service"))
    mem = ident("ECU-MEM", "Mem", "<MEM><SESSIONS/><DATABLOCKS/><FLASHDATAS/></MEM>")
    one = lambda index: ident(
        "ECU-MEM-CONNECTOR",
        f"C{index}",
        '<SESSION-DESCS><SESSION-DESC DIRECTION="DOWNLOAD"><SHORT-NAME>D</SHORT-NAME>'
        + by_name("Gone", "SESSION-SNREF")
        + by_name("Service", "DIAG-COMM-SNREF")
        + "</SESSION-DESC></SESSION-DESCS>"
        + by_id("Mem", "ECU-MEM-REF") + wrap("LAYER-REFS", by_id("V0", "LAYER-REF")),
    )
    flash = ident("FLASH", "Flash", wrap("ECU-MEMS", mem) + wrap("ECU-MEM-CONNECTORS", many(count, one)))
    return {"c.odx-d": container({"BASE-VARIANTS": base}), "f.odx-f": document(flash)}


def multiple_ecu_jobs(count):
    """Jobs whose parameters refer by short name to DOPs of the layers in which they run."""
    code = "<PROG-CODE><CODE-FILE>a.jar</CODE-FILE><SYNTAX>JAR</SYNTAX><REVISION>1</REVISION></PROG-CODE>"
    param = lambda index: "<SHORT-NAME>P</SHORT-NAME>" + by_name(f"Dop{index}", "DOP-BASE-SNREF")
    job = lambda index: ident(
        "MULTIPLE-ECU-JOB",
        f"J{index}",
        wrap("PROG-CODES", code)
        + wrap("INPUT-PARAMS", wrap("INPUT-PARAM", param(index)))
        + wrap("DIAG-LAYER-REFS", by_id("V0", "DIAG-LAYER-REF")) + "<AUDIENCE/>",
    )
    spec = ident("MULTIPLE-ECU-JOB-SPEC", "Jobs", wrap("MULTIPLE-ECU-JOBS", many(count, job)))
    dops = many(count, lambda index: dop(f"Dop{index}"))
    base = layer("BASE-VARIANT", "V0", DIAG_DATA_DICTIONARY_SPEC=dictionary(dops))
    return {"c.odx-d": container({"BASE-VARIANTS": base}), "j.odx-m": document(spec)}


def many_documents(count):
    one = lambda index: container({"BASE-VARIANTS": layer("BASE-VARIANT", f"V{index}")}, f"C{index}")
    return {f"d{index}.odx-d": one(index) for index in range(count)}


def documents_of_one_name(count):
    one = lambda index: container({"BASE-VARIANTS": layer("BASE-VARIANT", f"V{index}")})
    return {f"d{index}.odx-d": one(index) for index in range(count)}


def unknown_elements(count):
    base = layer("BASE-VARIANT", "V0", DIAG_COMMS=service("S"))
    text = container({"BASE-VARIANTS": base})
    unknown = many(count, lambda index: f"<X{index}/>")
    return {"c.odx-d": text.replace("</DIAG-COMMS>", unknown + "</DIAG-COMMS>")}


def nested_groups(count):
    """Nested SDGs."""
    groups = "<SDG>" * count + "<SD>x</SD>" + "</SDG>" * count
    holder = service("S").replace("<AUDIENCE/>", wrap("SDGS", groups) + "<AUDIENCE/>")
    base = layer("BASE-VARIANT", "V0", DIAG_COMMS=holder)
    return {"c.odx-d": container({"BASE-VARIANTS": base})}


def team_members(count):
    """The data used for detection of the manufacturer: companies, team members, texts."""
    member = lambda index: ident("TEAM-MEMBER", f"T{index}", f"<DEPARTMENT>D{index}</DEPARTMENT>")
    company = ident("COMPANY-DATA", "Company", wrap("TEAM-MEMBERS", many(count, member)))
    base = layer("BASE-VARIANT", "V0", DIAG_COMMS=service("S")).replace(
        "<DIAG-COMMS>", f"<COMPANY-DATAS>{company}</COMPANY-DATAS><DIAG-COMMS>", 1
    )
    return {"c.odx-d": container({"BASE-VARIANTS": base})}
