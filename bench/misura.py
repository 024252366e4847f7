"""Runs the measurements on a desktop of their own and prints what they find."""

import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tools", "prova"))

from schermo import Schermo  # noqa: E402


def main():
    cartella = sys.argv[1]
    programma = os.path.join(cartella, "somme", "somme")
    misure = [[os.path.join(cartella, "bench", "bench_avvio"), programma,
               os.path.join(cartella, "bench", "bench_vuoto")],
              [os.path.join(cartella, "bench", "bench_forme"), os.path.dirname(programma)]]
    with Schermo(1366, 768):
        # As on a desktop without assistive technology: nobody listens to the tree.
        os.environ.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
        return max(subprocess.run(misura, check=False).returncode for misura in misure)


if __name__ == "__main__":
    sys.exit(main())
