# SPDX-License-Identifier: Apache-2.0
"""Shapes of references: by ID, by short name, in cycles."""

from shapes.odx import (by_id, by_name, container, dictionary, dop, ident, layer, many, message, parent, service,
                        structure, value, wrap)


def base(**parts):
    return {"c.odx-d": container({"BASE-VARIANTS": layer("BASE-VARIANT", "V0", **parts)})}


def docrefs(count):
    """One ID in every layer; each is referred to by its layer's name."""

    def shared(index):
        request = message("REQUEST", "Request", value("P", by_id("Dop")), "Request")
        comm = service("Service", id_=f"L{index}.Service").replace(
            "<AUDIENCE/>", f'<AUDIENCE/><REQUEST-REF ID-REF="Request" DOCREF="L{index}" DOCTYPE="LAYER"/>'
        )
        return layer(
            "ECU-SHARED-DATA",
            f"L{index}",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop", f"L{index}.Dop")),
            DIAG_COMMS=comm,
            REQUESTS=request.replace('ID-REF="Dop"', f'ID-REF="L{index}.Dop"'),
        )

    return {"c.odx-d": container({"ECU-SHARED-DATAS": many(count, shared)})}


def imports(count):
    """One ID in every layer; the last imports all of them and refers to the ID as often."""
    libraries = many(
        count,
        lambda index: layer("ECU-SHARED-DATA", f"L{index}", DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop", "Dop"))),
    )
    last = layer(
        "BASE-VARIANT",
        "V0",
        DIAG_DATA_DICTIONARY_SPEC=dictionary(
            structures=structure("S", many(count, lambda index: value(f"P{index}", by_id("Dop"))))
        ),
        IMPORT_REFS=many(count, lambda index: by_id(f"L{index}", "IMPORT-REF")),
    )
    return {"c.odx-d": container({"ECU-SHARED-DATAS": libraries, "BASE-VARIANTS": last})}


def imports_without_the_id(count):
    """A layer imports many libraries and refers as often to an ID of layers that it does not import."""
    libraries = many(count, lambda index: layer("ECU-SHARED-DATA", f"L{index}"))
    own = dictionary(dop("Dop"))
    others = many(2, lambda index: layer("ECU-SHARED-DATA", f"O{index}", DIAG_DATA_DICTIONARY_SPEC=own))
    params = many(count, lambda index: value(f"P{index}", by_id("Dop")))
    importing = layer(
        "BASE-VARIANT",
        "V0",
        DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=structure("S", params)),
        IMPORT_REFS=many(count, lambda index: by_id(f"L{index}", "IMPORT-REF")),
    )
    return {
        "a.odx-d": container({"ECU-SHARED-DATAS": libraries}, "A"),
        "b.odx-d": container({"ECU-SHARED-DATAS": others}, "B"),
        "c.odx-d": container({"BASE-VARIANTS": importing}, "C"),
    }


def imports_of_each(count):
    """Libraries with the same IDs; as many layers each import one of them and refer to the IDs."""
    own = lambda index: dictionary(many(20, lambda number: dop(f"D{number}", f"ID{number}")))
    libraries = many(
        count, lambda index: layer("ECU-SHARED-DATA", f"L{index}", DIAG_DATA_DICTIONARY_SPEC=own(index))
    )
    params = many(20, lambda number: value(f"P{number}", by_id(f"ID{number}")))
    importing = many(
        count,
        lambda index: layer(
            "BASE-VARIANT",
            f"V{index}",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=structure("S", params, f"S{index}")),
            IMPORT_REFS=by_id(f"L{index}", "IMPORT-REF"),
        ),
    )
    return {
        "a.odx-d": container({"ECU-SHARED-DATAS": libraries}, "A"),
        "b.odx-d": container({"BASE-VARIANTS": importing}, "B"),
    }


def imports_of_one_id(count):
    """Every layer and every IMPORT-REF has the same ID."""
    libraries = many(count, lambda index: layer("ECU-SHARED-DATA", f"L{index}", "Library"))
    refs = many(count, lambda _: by_id("Library", "IMPORT-REF"))
    last = layer("BASE-VARIANT", "V0", IMPORT_REFS=refs)
    return {"c.odx-d": container({"ECU-SHARED-DATAS": libraries, "BASE-VARIANTS": last})}


def repeated_ids(count):
    return base(DIAG_DATA_DICTIONARY_SPEC=dictionary(many(count, lambda index: dop(f"Dop{index}", "Dop"))))


def repeated_names(count):
    return base(DIAG_DATA_DICTIONARY_SPEC=dictionary(many(count, lambda index: dop("Dop", f"Dop{index}"))))


def short_name_cycles(count):
    """STRUCTUREs that contain themselves by their short names, seen from as many variants."""
    cycles = many(count, lambda index: structure(f"S{index}", value("P", by_name(f"S{index}"))))
    above = layer("BASE-VARIANT", "Base", DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=cycles))
    variants = many(
        count, lambda index: layer("ECU-VARIANT", f"V{index}", PARENT_REFS=parent("BASE-VARIANT", "Base"))
    )
    return {"c.odx-d": container({"BASE-VARIANTS": above, "ECU-VARIANTS": variants})}


def cycles_that_each_variant_changes(count):
    """The same, where each variant has its own STRUCTURE in place of one of them."""
    cycles = many(count, lambda index: structure(f"S{index}", value("P", by_name(f"S{index}"))))
    above = layer("BASE-VARIANT", "Base", DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=cycles))
    variants = many(
        count,
        lambda index: layer(
            "ECU-VARIANT",
            f"V{index}",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=structure(f"S{index}", "", f"Own{index}")),
            PARENT_REFS=parent("BASE-VARIANT", "Base"),
        ),
    )
    return {"c.odx-d": container({"BASE-VARIANTS": above, "ECU-VARIANTS": variants})}


def short_name_cycles_of_each(count):
    """Layers that each have their own STRUCTURE, which contains itself by its short name."""
    own = lambda index: dictionary(structures=structure(f"S{index}", value("P", by_name(f"S{index}"))))
    layers = many(count, lambda index: layer("BASE-VARIANT", f"V{index}", DIAG_DATA_DICTIONARY_SPEC=own(index)))
    return {"c.odx-d": container({"BASE-VARIANTS": layers})}


def cycles_of_equal_names(count):
    """Layers that each have two STRUCTUREs of the same names, which contain each other by short name."""

    def one(index):
        first = structure("A", value("P", by_name("B")), f"A{index}")
        second = structure("B", value("P", by_name("A")), f"B{index}")
        return layer("BASE-VARIANT", f"V{index}", DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=first + second))

    return {"c.odx-d": container({"BASE-VARIANTS": many(count, one)})}


def chain_of_structures(count):
    """Each contains the next one; a response leads to the first."""
    chain = many(
        count,
        lambda index: structure(
            f"S{index}", value(f"P{index}", by_id(f"S{index + 1}" if index + 1 < count else "Dop", "DOP-REF"))
        ),
    )
    return base(
        DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop"), chain),
        DIAG_COMMS=service("Service", response="Response"),
        POS_RESPONSES=message("POS-RESPONSE", "Response", value("Root", by_id("S0"))),
    )


def chain_by_short_names(count):
    target = lambda index: by_name(f"S{index + 1}" if index + 1 < count else "Dop")
    chain = many(count, lambda index: structure(f"S{index}", value(f"P{index}", target(index))))
    return base(
        DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop"), chain),
        DIAG_COMMS=service("Service", response="Response"),
        POS_RESPONSES=message("POS-RESPONSE", "Response", value("Root", by_name("S0"))),
    )


def described(index, target="Dop"):
    """An ENV-DATA-DESC that reads the parameter "Code", with an ENV-DATA whose parameter is of the target."""
    env_data = ident("ENV-DATA", f"Env{index}", wrap("PARAMS", value("E", by_id(target))) + "<ALL-VALUE/>")
    return ident("ENV-DATA-DESC", f"Desc{index}", by_name("Code", "PARAM-SNREF") + wrap("ENV-DATAS", env_data))


def env_data_desc(count, descs=1, structures="", more=""):
    """Services that all lead to an ENV-DATA-DESC, which reads one of their parameters."""
    params = lambda index: value("Code", by_id("Dop")) + value(f"P{index}", by_id(f"Desc{index % descs}")) + more
    return base(
        DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop"), structures, env_data_descs=many(descs, described)),
        DIAG_COMMS=many(count, lambda index: service(f"S{index}", response=f"R{index}")),
        POS_RESPONSES=many(count, lambda index: message("POS-RESPONSE", f"R{index}", params(index))),
    )


def env_data_descs(count):
    return env_data_desc(count, count)


def env_data_desc_and_large_structure(count, descs=1):
    """The same, where each service leads to a STRUCTURE of as many parameters as well."""
    large = structure("Large", many(count, lambda index: value(f"L{index}", by_id("Dop"))))
    return env_data_desc(count, descs, large, value("Q", by_id("Large")))


def env_data_descs_and_large_structure(count):
    return env_data_desc_and_large_structure(count, count)


def env_data_descs_in_a_circle(count):
    """Each leads to the next one, and the last back to the first through a table."""
    descs = many(count, lambda index: described(index, f"Desc{index + 1}" if index + 1 < count else "Back"))
    key = '<PARAM xsi:type="TABLE-KEY" ID="Key"><SHORT-NAME>Key</SHORT-NAME><TABLE-REF ID-REF="Table"/></PARAM>'
    row = ident("TABLE-ROW", "Row", '<KEY>1</KEY><STRUCTURE-REF ID-REF="First"/>')
    return base(
        DIAG_DATA_DICTIONARY_SPEC=dictionary(
            dop("Dop"),
            structure("Back", key) + structure("First", value("A", by_id("Desc0"))),
            env_data_descs=descs,
            tables=ident("TABLE", "Table", '<KEY-DOP-REF ID-REF="Dop"/>' + row),
        ),
        DIAG_COMMS=service("S", response="R"),
        POS_RESPONSES=message("POS-RESPONSE", "R", value("Code", by_id("Dop")) + value("P", by_id("Desc0"))),
    )


def protocol_snrefs(count):
    """PROTOCOL-SNREFs where no layer is a PROTOCOL."""
    head = wrap("PROTOCOL-SNREFS", many(count, lambda index: by_name(f"P{index}", "PROTOCOL-SNREF")))
    return base(DIAG_COMMS=service("S").replace("<AUDIENCE/>", "<AUDIENCE/>" + head))


def matching_parameters(count):
    """MATCHING-PARAMETERs for all the parameters of one response."""
    pattern = many(
        count,
        lambda index: "<MATCHING-PARAMETER><EXPECTED-VALUE>1</EXPECTED-VALUE>"
        + by_name("Service", "DIAG-COMM-SNREF")
        + by_name(f"P{index}", "OUT-PARAM-IF-SNREF")
        + "</MATCHING-PARAMETER>",
    )
    above = layer(
        "BASE-VARIANT",
        "Base",
        DIAG_DATA_DICTIONARY_SPEC=dictionary(
            dop("Dop"), structure("Nested", many(count, lambda index: value(f"P{index}", by_id("Dop"))))
        ),
        DIAG_COMMS=service("Service", response="Response"),
        POS_RESPONSES=message("POS-RESPONSE", "Response", value("Root", by_id("Nested"))),
    )
    variant = layer(
        "ECU-VARIANT",
        "V0",
        ECU_VARIANT_PATTERNS=wrap("ECU-VARIANT-PATTERN", wrap("MATCHING-PARAMETERS", pattern)),
        PARENT_REFS=parent("BASE-VARIANT", "Base"),
    )
    return {"c.odx-d": container({"BASE-VARIANTS": above, "ECU-VARIANTS": variant})}


def comm_relations(count):
    """COMM-RELATIONs that refer to as many services by short name, with a parameter each."""
    relation = (
        lambda index: '<COMM-RELATION VALUE-TYPE="CURRENT"><RELATION-TYPE>READ</RELATION-TYPE>'
        + by_name(f"S{index}", "DIAG-COMM-SNREF")
        + by_name("P", "OUT-PARAM-IF-SNREF")
        + "</COMM-RELATION>"
    )
    variable = lambda index: ident(
        "DIAG-VARIABLE", f"V{index}", wrap("COMM-RELATIONS", relation(index)), f"Var{index}"
    )
    return base(
        DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop")),
        DIAG_COMMS=many(count, lambda index: service(f"S{index}", response=f"R{index}")),
        POS_RESPONSES=many(count, lambda index: message("POS-RESPONSE", f"R{index}", value("P", by_id("Dop")))),
        DIAG_VARIABLES=many(count, variable),
    )


def access_levels(count):
    named = lambda index: by_name(f"S{index}", "DIAG-COMM-SNREF")
    level = lambda index: wrap("ACCESS-LEVEL", "<VALUE>1</VALUE><DESC/>" + named(index))
    return base(
        DIAG_COMMS=many(count, lambda index: service(f"S{index}")),
        ACCESS_LEVELS=many(count, level),
    )


def names_that_do_not_resolve(count):
    params = many(count, lambda index: value(f"P{index}", by_name(f"Gone{index}")))
    return base(DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=structure("S", params)))


def one_name_for_each_variant(count):
    """References by one short name, whose target is another DOP in each of as many variants."""
    params = many(count, lambda index: value(f"P{index}", by_name("Dop")))
    above = layer(
        "BASE-VARIANT",
        "Base",
        DIAG_COMMS=service("Service", "Request"),
        REQUESTS=message("REQUEST", "Request", params),
    )
    variants = many(
        count,
        lambda index: layer(
            "ECU-VARIANT",
            f"V{index}",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop", f"Dop{index}")),
            PARENT_REFS=parent("BASE-VARIANT", "Base"),
        ),
    )
    return {"c.odx-d": container({"BASE-VARIANTS": above, "ECU-VARIANTS": variants})}


def library_by_id(count, layers):
    """Services, spread over so many layers, that lead by ID to a STRUCTURE of a library that is no parent."""
    large = structure("Large", many(count, lambda index: value(f"P{index}", by_name("Dop"))))
    library = layer("ECU-SHARED-DATA", "Library", DIAG_DATA_DICTIONARY_SPEC=dictionary(structures=large))

    def variant(index):
        numbers = range(index, count, layers)
        request = lambda number: message("REQUEST", f"Request{number}", value("In", by_id("Large")))
        return layer(
            "BASE-VARIANT",
            f"V{index}",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop", f"Dop{index}")),
            DIAG_COMMS="".join(service(f"Service{number}", f"Request{number}") for number in numbers),
            REQUESTS="".join(request(number) for number in numbers),
        )

    return {"c.odx-d": container({"ECU-SHARED-DATAS": library, "BASE-VARIANTS": many(layers, variant)})}


def library_by_id_in_one_layer(count):
    return library_by_id(count, 1)


def library_by_id_in_each_layer(count):
    return library_by_id(count, count)


def related_diag_comms(count):
    """A chain of services, each of which is related to the next one."""
    related = (
        lambda index: '<RELATED-DIAG-COMM-REFS><RELATED-DIAG-COMM-REF ID-REF="S%d"><RELATION-TYPE>X</RELATION-TYPE>'
        "</RELATED-DIAG-COMM-REF></RELATED-DIAG-COMM-REFS>" % ((index + 1) % count)
    )
    return base(
        DIAG_COMMS=many(
            count, lambda index: service(f"S{index}").replace("<AUDIENCE/>", "<AUDIENCE/>" + related(index))
        )
    )


def tables(count):
    """A TABLE whose rows lead to as many STRUCTUREs, one of which leads back to it."""
    content = lambda index: f"<KEY>{index}</KEY>" + by_id(f"S{index}", "STRUCTURE-REF")
    rows = many(count, lambda index: ident("TABLE-ROW", f"Row{index}", content(index)))
    key = '<PARAM xsi:type="TABLE-KEY" ID="Key"><SHORT-NAME>Key</SHORT-NAME><TABLE-REF ID-REF="Table"/></PARAM>'
    data = '<PARAM xsi:type="TABLE-STRUCT"><SHORT-NAME>Data</SHORT-NAME><TABLE-KEY-REF ID-REF="Key"/></PARAM>'
    params = lambda index: key + data if index == 0 else value("P", by_id("Dop"))
    structures = many(count, lambda index: structure(f"S{index}", params(index)))
    table = ident("TABLE", "Table", by_id("Dop", "KEY-DOP-REF") + rows)
    return base(
        DIAG_DATA_DICTIONARY_SPEC=dictionary(dop("Dop"), structures, tables=table),
        DIAG_COMMS=service("Service", response="Response"),
        POS_RESPONSES=message("POS-RESPONSE", "Response", value("Root", by_id("S0"))),
    )
