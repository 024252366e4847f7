#!/usr/bin/python3
"""Runs the tests that were built for Windows, under Wine.

    prove_windows.py [arguments of ctest ...]
"""

import subprocess
import sys

from schermo_wine import COSTRUITO, LIBRERIE, PLUGIN, Finestre, di_windows


def main():
    finestre = Finestre()
    finestre.prepara()
    # The last one, since a test for Windows would tell its failures to a debugger alone.
    ambiente = {**finestre.ambiente(), "WINEPATH": di_windows(*LIBRERIE),
                "WINEQT_PLUGIN_PATH": di_windows(*PLUGIN), "WINEQT_QPA_PLATFORM": "offscreen",
                "WINEQT_FORCE_STDERR_LOGGING": "1"}
    try:
        return subprocess.run(["ctest", "--test-dir", COSTRUITO, "--output-on-failure", "-j2", *sys.argv[1:]],
                              env=ambiente, check=False).returncode
    finally:
        finestre.ferma()


if __name__ == "__main__":
    sys.exit(main())
