#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Make the archives, and on Debian its packages; check their contents, and run the program from them.

    check_packages.py BUILD_FOLDER FOLDER
"""

import os
import pathlib
import re
import sys
import tarfile
import zipfile

from project import EMULATOR, EXE, ROOT, SAMPLE, empty, expect, run, run_program, version, write_preparation

FIELDS = ["Package", "Version", "Architecture", "Depends", "Recommends"]


def make(build, folder):
    """Runs scripts/package in a tree without a build."""
    tree = empty(folder / "tree")
    (tree / "scripts").mkdir()
    (tree / "scripts" / "package").write_bytes((ROOT / "scripts" / "package").read_bytes())
    write_preparation(tree / "scripts")
    (tree / "scripts" / "prepare-windows").write_text("#!/bin/sh\n")
    for script in (tree / "scripts").iterdir():
        script.chmod(0o755)
    (tree / "build").mkdir()
    (tree / "build" / ("windows" if EMULATOR else "release")).symlink_to(build)
    run(tree / "scripts" / "package", *(["--windows"] if EMULATOR else []), folder / "made")
    return folder / "made"


def is_listed(pattern, names):
    return any(re.fullmatch(pattern, name) for name in names)


def check_contents(package, names, expected, unexpected):
    for pattern in expected:
        expect(is_listed(pattern, names), f"{package} has no {pattern}:\n" + "\n".join(names))
    for pattern in unexpected:
        expect(not is_listed(pattern, names), f"{package} has {pattern}")


def check_debian(made, root):
    soversion = re.match(r"0\.\d+|[1-9]\d*", version())[0]
    library, multiarch = f"libdiagkit{soversion}", run("dpkg-architecture", "-qDEB_HOST_MULTIARCH").strip()
    files = {path.name.split("_")[0]: path for path in made.glob("*.deb")}
    expect(set(files) == {library, "libdiagkit-dev", "diagkit"}, f"packages: {set(files)}")

    fields, contents = {}, {}
    for name, path in files.items():
        fields[name] = {field: run("dpkg-deb", "-f", path, field).strip() for field in FIELDS}
        listing = [line.split(None, 5) for line in run("dpkg-deb", "-c", path).splitlines()]
        contents[name] = [row[5].split(" -> ")[0][1:] for row in listing]
        expect(all(row[1] == "root/root" for row in listing), f"{name}: not everything is root's")
        told = [fields[name][field] for field in ("Package", "Version", "Architecture")]
        expected = [name, f"{version()}-1", run("dpkg", "--print-architecture").strip()]
        expect(told == expected, f"{told} instead of {expected}")
        for document in ("copyright", r"changelog\.gz", r"changelog\.Debian\.gz"):
            expect(is_listed(f"/usr/share/doc/{re.escape(name)}/{document}", contents[name]), f"{name}: no {document}")

    lib = f"/usr/lib/{multiarch}"
    shared = [rf"{lib}/libdiagkit\.so\.{re.escape(version())}", rf"{lib}/libdiagkit\.so\.{re.escape(soversion)}"]
    namelink, headers = rf"{lib}/libdiagkit\.so", "/usr/include/.+"
    development = [f"{lib}/libdiagkit_{name}\\.a" for name in ("memory", "conformance", "reader", "check", "query")]
    development += ["/usr/include/diagkit/model/Layers.h", f"{lib}/cmake/diagkit/diagkitConfig.cmake", namelink]
    development += [f"{lib}/pkgconfig/diagkit{name}.pc" for name in ("", "-memory", "-conformance", "-reader", "-check", "-query")]
    development.append(r"/usr/share/diagkit/conformance/reference\.odx-d")
    program = ["/usr/bin/diagkit", r"/usr/share/man/man1/diagkit\.1\.gz"]
    program += ["/usr/share/zsh/vendor-completions/_diagkit"]
    program += ["/usr/share/bash-completion/completions/diagkit", "/usr/share/fish/vendor_completions.d/diagkit.fish"]
    check_contents(library, contents[library], shared, [namelink, headers, "/usr/bin/.+", r".*\.a"])
    check_contents("libdiagkit-dev", contents["libdiagkit-dev"], development, [*shared, "/usr/bin/.+"])
    check_contents("diagkit", contents["diagkit"], program, [*shared, headers, f"{lib}/.+"])

    own = f"{library} (= {version()}-1)"
    expect("libc6" in fields[library]["Depends"], f"{library} depends on {fields[library]['Depends']}")
    for name in ("libc6", "libexpat1", "libzip4", "libfmt9", own):
        expect(name in fields["diagkit"]["Depends"], f"diagkit depends on {fields['diagkit']['Depends']}")
    recommended = {name: fields[name]["Recommends"] for name in fields if fields[name]["Recommends"]}
    expect(recommended == {"diagkit": "graphviz"}, f"recommended are {recommended}")
    for name in (own, "libexpat1-dev", "libzip-dev", "pkg-config"):
        expect(name in fields["libdiagkit-dev"]["Depends"].split(", "), f"{name} is not among the dependencies")

    shlibs = run("dpkg-deb", "-I", files[library], "shlibs")
    expect(shlibs.split() == f"libdiagkit {soversion} {library} (>= {version()}-1)".split(), f"shlibs: {shlibs}")

    for path in files.values():
        run("dpkg-deb", "-x", path, root)
    program = root / "usr/bin/diagkit"
    expect("PATH" not in re.sub(r"^.*file format.*$", "", run("objdump", "-p", program), flags=re.M), "a path is left")
    check_program(program, os.environ | {"LD_LIBRARY_PATH": f"{root}{lib}"})
    flags = run(
        *("pkg-config", "--libs", "diagkit"),
        env=os.environ | {"PKG_CONFIG_LIBDIR": f"{root}{lib}/pkgconfig", "PKG_CONFIG_PATH": ""},
    )
    expect("-ldiagkit" in flags, f"pkg-config says {flags}")


def check_program(program, environment):
    answer = run_program(program, "--version", env=environment)
    expect(answer == f"diagkit {version()}\n", f"{program} has another version")
    answer = run_program(program, "view", "diag-comms", SAMPLE, "--layer", "FrontWiperRainLight", env=environment)
    expect("SwitchHeadlamps" in answer, f"{program} answers\n{answer}")


def check_archives(made, folder):
    environment = {name: value for name, value in os.environ.items() if name != "LD_LIBRARY_PATH"}
    archives = {"tar.gz": tarfile.open, "zip": zipfile.ZipFile}
    listings = []
    for ending, opening in archives.items():
        found = list(made.glob(f"diagkit-{version()}-*.{ending}"))
        expect(len(found) == 1, f"archives of {ending}: {found}")
        with opening(found[0]) as archive:
            names = archive.getnames() if ending == "tar.gz" else archive.namelist()
            listings.append({name.rstrip("/") for name in names if not name.endswith("/")})
    tops = {name.split("/")[0] for listing in listings for name in listing}
    expect(len(tops) == 1, f"the archives unpack into {tops}")

    run("tar", "-xf", next(made.glob("*.tar.gz")), "-C", folder)
    top = folder / tops.pop()
    names = {str(path.relative_to(folder)) for path in folder.rglob("*") if not path.is_dir()}
    expect(names <= listings[1], f"the .zip lacks {names - listings[1]}")
    for name in (f"bin/diagkit{EXE}", "include/diagkit/Version.h", "share/man/man1/diagkit.1"):
        expect((top / name).is_file(), f"the archives lack {name}")
    check_program(top / "bin/diagkit", environment)


def main():
    build, folder = pathlib.Path(sys.argv[1]), empty(pathlib.Path(sys.argv[2]))
    made = make(build, folder)
    if not EMULATOR:
        check_debian(made, empty(folder / "root"))
    check_archives(made, empty(folder / "unpacked"))
    others = {path.name for path in made.iterdir() if not re.search(r"\.(deb|tar\.gz|zip)(\.sha256)?$", path.name)}
    expect(not others, f"besides packages there are {others}")
    sums = list(made.glob("*.sha256"))
    expect(sums, "no checksums")
    run("sha256sum", "-c", *sums, cwd=made)


if __name__ == "__main__":
    main()
