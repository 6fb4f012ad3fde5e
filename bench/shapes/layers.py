# SPDX-License-Identifier: Apache-2.0
"""Shapes of layers: what they inherit, and on how many ways."""

from shapes.odx import (by_id, by_name, container, dictionary, dop, layer, many, message, parent, service, structure,
                        value)


def variants_with_equal_names(count):
    """Ordinary data: every BASE-VARIANT has the same 60 DOP names, and 300 references by them to its own."""

    def base(index):
        prefix = f"L{index}."
        dops = many(60, lambda number: dop(f"Dop{number}", f"{prefix}Dop{number}"))
        structures = many(
            30,
            lambda number: structure(
                f"Structure{number}",
                many(10, lambda param: value(f"P{param}", by_name(f"Dop{(number * 10 + param) % 60}"))),
                f"{prefix}Structure{number}",
            ),
        )
        return layer("BASE-VARIANT", f"L{index}", DIAG_DATA_DICTIONARY_SPEC=dictionary(dops, structures))

    return {"c.odx-d": container({"BASE-VARIANTS": many(count, base)})}


def variants_of_one_base(count):
    """Ordinary data: ECU-VARIANTs with a service each over one BASE-VARIANT with 40."""
    base = layer("BASE-VARIANT", "Base", DIAG_COMMS=many(40, lambda index: service(f"Shared{index}")))
    variant = lambda index: layer(
        "ECU-VARIANT",
        f"V{index}",
        DIAG_COMMS=service("Own", id_=f"V{index}.Own"),
        PARENT_REFS=parent("BASE-VARIANT", "Base", ["Shared1"]),
    )
    return {"c.odx-d": container({"BASE-VARIANTS": base, "ECU-VARIANTS": many(count, variant)})}


def services_in_one_layer(count):
    """Ordinary data: a PROTOCOL with services, requests, responses and DOPs, and one ECU-VARIANT below."""
    protocol = layer(
        "PROTOCOL",
        "Protocol",
        DIAG_DATA_DICTIONARY_SPEC=dictionary(many(count, lambda index: dop(f"Dop{index}"))),
        DIAG_COMMS=many(count, lambda index: service(f"Service{index}", f"Request{index}", f"Response{index}")),
        REQUESTS=many(count, lambda index: message("REQUEST", f"Request{index}", value("P", by_id(f"Dop{index}")))),
        POS_RESPONSES=many(
            count, lambda index: message("POS-RESPONSE", f"Response{index}", value("P", by_name(f"Dop{index}")))
        ),
    )
    base = layer("BASE-VARIANT", "Base", PARENT_REFS=parent("PROTOCOL", "Protocol"))
    variant = layer("ECU-VARIANT", "Variant", PARENT_REFS=parent("BASE-VARIANT", "Base"))
    layers = {"PROTOCOLS": protocol, "BASE-VARIANTS": base, "ECU-VARIANTS": variant}
    return {"c.odx-d": container(layers)}


def stack(count, shared=""):
    """Four levels, each of which refers to its parent n times."""
    return {
        "c.odx-d": container(
            {
                "ECU-SHARED-DATAS": shared or layer("ECU-SHARED-DATA", "Shared", DIAG_COMMS=service("Read")),
                "PROTOCOLS": layer(
                    "PROTOCOL", "Protocol", PARENT_REFS=many(count, lambda _: parent("ECU-SHARED-DATA", "Shared"))
                ),
                "FUNCTIONAL-GROUPS": layer(
                    "FUNCTIONAL-GROUP", "Group", PARENT_REFS=many(count, lambda _: parent("PROTOCOL", "Protocol"))
                ),
                "BASE-VARIANTS": layer(
                    "BASE-VARIANT", "Base", PARENT_REFS=many(count, lambda _: parent("FUNCTIONAL-GROUP", "Group"))
                ),
                "ECU-VARIANTS": layer(
                    "ECU-VARIANT", "V0", PARENT_REFS=many(count, lambda _: parent("BASE-VARIANT", "Base"))
                ),
            }
        )
    }


def parents_named_often(count):
    return stack(count)


def parents_named_often_with_a_cycle(count):
    """The same, and a STRUCTURE that contains itself by its short name."""
    cycle = dictionary(structures=structure("Cycle", value("P", by_name("Cycle"))))
    return stack(count, layer("ECU-SHARED-DATA", "Shared", DIAG_DATA_DICTIONARY_SPEC=cycle, DIAG_COMMS=service("Read")))


def parents_with_exclusions(count):
    """An ECU-VARIANT that refers to its parent n times, and excludes another service each time."""
    base = layer("BASE-VARIANT", "Base", DIAG_COMMS=many(count, lambda index: service(f"S{index}")))
    refs = many(count, lambda index: parent("BASE-VARIANT", "Base", [f"S{index}"]))
    return {
        "c.odx-d": container({"BASE-VARIANTS": base, "ECU-VARIANTS": layer("ECU-VARIANT", "V0", PARENT_REFS=refs)})
    }


def lattice(count):
    """n layers on each of four levels, each of which inherits from all of the level above."""

    def level(tag, parent_tag):
        def one(index):
            refs = many(count, lambda above: parent(parent_tag, f"{parent_tag}{above}")) if parent_tag else ""
            comms = service(f"S{index}", id_=f"{tag}.S{index}")
            return layer(tag, f"{tag}{index}", DIAG_COMMS=comms, PARENT_REFS=refs)

        return many(count, one)

    return {
        "c.odx-d": container(
            {
                "PROTOCOLS": level("PROTOCOL", ""),
                "FUNCTIONAL-GROUPS": level("FUNCTIONAL-GROUP", "PROTOCOL"),
                "BASE-VARIANTS": level("BASE-VARIANT", "FUNCTIONAL-GROUP"),
                "ECU-VARIANTS": level("ECU-VARIANT", "BASE-VARIANT"),
            }
        )
    }


def levels_with_two_parents(count):
    """n levels of two BASE-VARIANTs, each with both of the level above as parents: no pass takes them."""

    def level(index):
        refs = many(2, lambda side: parent("BASE-VARIANT", f"L{index - 1}.{side}")) if index else ""
        comms = "" if index else service("Read", id_="L0.Read")
        return many(2, lambda side: layer("BASE-VARIANT", f"L{index}.{side}", PARENT_REFS=refs,
                                          DIAG_COMMS=comms.replace("L0.Read", f"L0.{side}.Read")))

    last = layer("ECU-VARIANT", "V0", PARENT_REFS=parent("BASE-VARIANT", f"L{count - 1}.0"))
    return {"c.odx-d": container({"BASE-VARIANTS": many(count, level), "ECU-VARIANTS": last})}


def circles_of_parents(count):
    """BASE-VARIANTs of which each has the two next ones as parents, and the last ones the first."""

    def one(index):
        refs = many(2, lambda step: parent("BASE-VARIANT", f"B{(index + step + 1) % count}"))
        return layer("BASE-VARIANT", f"B{index}", DIAG_COMMS=service("Read", id_=f"B{index}.Read"), PARENT_REFS=refs)

    last = layer("ECU-VARIANT", "V0", PARENT_REFS=parent("BASE-VARIANT", "B0"))
    return {"c.odx-d": container({"BASE-VARIANTS": many(count, one), "ECU-VARIANTS": last})}


def long_name_of_a_child(count):
    """A short name with as many characters as its layer has PARENT-REFs."""
    name = "V" + "x" * (40 * count)
    bases = many(count, lambda index: layer("BASE-VARIANT", f"B{index}"))
    variant = layer(
        "ECU-VARIANT", name, "V0", PARENT_REFS=many(count, lambda index: parent("BASE-VARIANT", f"B{index}"))
    )
    return {"c.odx-d": container({"BASE-VARIANTS": bases, "ECU-VARIANTS": variant})}


def long_name_in_findings(count):
    """A short name with as many characters as there are findings that quote it."""
    name = "V" + "x" * (40 * count)
    refs = many(count, lambda _: parent("ECU-VARIANT", "V0"))
    return {"c.odx-d": container({"ECU-VARIANTS": layer("ECU-VARIANT", name, "V0", PARENT_REFS=refs)})}


def parents_that_are_missing(count):
    refs = many(count, lambda index: parent("BASE-VARIANT", f"Gone{index}"))
    return {"c.odx-d": container({"ECU-VARIANTS": layer("ECU-VARIANT", "V0", PARENT_REFS=refs)})}
