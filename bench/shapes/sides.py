# SPDX-License-Identifier: Apache-2.0
"""Shapes of two databases to compare: what changed, and in how many layers."""

from shapes.odx import (by_id, by_name, container, dictionary, dop, layer, many, message, parent, service, structure,
                        value)


def sides(make):
    """The old or the new database, as requested."""
    return {"1-old.odx-d": make(False), "2-new.odx-d": make(True)}


def other(text, is_new):
    return text.replace("<BIT-LENGTH>8<", "<BIT-LENGTH>7<", 1) if is_new else text


def a_change_that_many_inherit(count):
    """Ordinary data: one DOP of a BASE-VARIANT changed, and every ECU-VARIANT sees it, with the services over it."""
    variants = many(count, lambda index: layer("ECU-VARIANT", f"V{index}", PARENT_REFS=parent("BASE-VARIANT", "Base")))

    def make(is_new):
        dops = other(dop("Changed"), is_new) + many(40, lambda index: dop(f"Dop{index}"))
        base = layer(
            "BASE-VARIANT",
            "Base",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(dops),
            DIAG_COMMS=many(40, lambda index: service(f"Shared{index}", f"Request{index}")),
            REQUESTS=many(40, lambda index: message("REQUEST", f"Request{index}", value("P", by_id(f"Dop{index}")))),
        )
        return container({"BASE-VARIANTS": base, "ECU-VARIANTS": variants})

    return sides(make)


def changes_in_one_layer(count):
    """Ordinary data: every DOP of a layer changed, and so did the requests over them."""
    def make(is_new):
        base = layer(
            "BASE-VARIANT",
            "Base",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(many(count, lambda index: other(dop(f"Dop{index}"), is_new))),
            DIAG_COMMS=many(count, lambda index: service(f"Service{index}", f"Request{index}")),
            REQUESTS=many(count, lambda index: message("REQUEST", f"Request{index}", value("P", by_id(f"Dop{index}")))),
        )
        return container({"BASE-VARIANTS": base})

    return sides(make)


def names_that_all_changed(count):
    """Every service has another name, and half of them the same content."""
    def make(is_new):
        name = "New" if is_new else "Old"
        services = many(count, lambda index: service(f"{name}{index}", head=f"<SDGS><SDG><SD>{index // 2}</SD></SDG></SDGS>"))
        return container({"BASE-VARIANTS": layer("BASE-VARIANT", "Base", DIAG_COMMS=services)})

    return sides(make)


def layers_that_all_changed_their_names(count):
    def make(is_new):
        name = "New" if is_new else "Old"
        variants = many(count, lambda index: layer(
            "ECU-VARIANT", f"{name}{index}", DIAG_COMMS=service(f"Own{index}"),
            PARENT_REFS=parent("BASE-VARIANT", "Base")))
        return container({"BASE-VARIANTS": layer("BASE-VARIANT", "Base"), "ECU-VARIANTS": variants})

    return sides(make)


def short_names_with_a_meaning_in_each(count):
    """Services of a base with references by short name, one of which has its own DOP in each ECU-VARIANT."""
    def make(is_new):
        base = layer(
            "BASE-VARIANT",
            "Base",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(many(20, lambda index: dop(f"Dop{index}"))),
            DIAG_COMMS=many(20, lambda index: service(f"Shared{index}", f"Request{index}")),
            REQUESTS=many(20, lambda index: message("REQUEST", f"Request{index}", value("P", by_name(f"Dop{index}")))),
        )
        variants = many(count, lambda index: layer(
            "ECU-VARIANT", f"V{index}",
            DIAG_DATA_DICTIONARY_SPEC=dictionary(other(dop("Dop1", f"V{index}.Dop1"), is_new)),
            PARENT_REFS=parent("BASE-VARIANT", "Base")))
        return container({"BASE-VARIANTS": base, "ECU-VARIANTS": variants})

    return sides(make)


def chain_that_changed_at_its_end(count):
    """Structures that each lead to the next one."""
    def make(is_new):
        structures = many(count, lambda index: structure(
            f"S{index}", value("P", by_id(f"S{index + 1}" if index + 1 < count else "Dop"))))
        content = dictionary(other(dop("Dop"), is_new), structures)
        return container({"BASE-VARIANTS": layer("BASE-VARIANT", "Base", DIAG_DATA_DICTIONARY_SPEC=content)})

    return sides(make)
