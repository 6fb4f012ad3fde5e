# SPDX-License-Identifier: Apache-2.0
"""Check every source of a build with the compiler, and print its messages.

    compile_without_output.py COMPILE_COMMANDS
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys


def look_at(entry):
    """The compiler's messages about a source, and whether it accepts it."""
    command = f"{entry['command']} -fsyntax-only"
    done = subprocess.run(
        command, shell=True, cwd=entry["directory"], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8"
    )
    return done.stdout, done.returncode == 0


def main():
    entries = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as threads:
        results = list(threads.map(look_at, entries))
    for said, _ in results:
        sys.stdout.write(said)
    refused = sum(not is_taken for _, is_taken in results)
    print(f"{len(results)} sources, {refused} refused")
    return 1 if refused or not results else 0


if __name__ == "__main__":
    sys.exit(main())
