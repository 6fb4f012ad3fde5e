# SPDX-License-Identifier: Apache-2.0
"""Command lines of the programs of a build."""

import os

# The command that runs them where they are for another system.
EMULATOR = [word for word in [os.environ.get("DIAGKIT_EMULATOR")] if word]


def call(build, program):
    """The first words of a call of build/FOLDER/NAME, which Windows has in one folder with the library."""
    on_windows = build / "bin" / f"{os.path.basename(program)}.exe"
    return [*EMULATOR, str(on_windows if on_windows.exists() else build / program)]
