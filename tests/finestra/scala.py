#!/usr/bin/python3
"""Starts the program at twice the size on a screen that is small for that, and measures its window.

    scala.py <program>

Ends with 0 when the window is no larger than the screen.
"""

import os
import re
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../tools/prova"))

from schermo import Schermo  # noqa: E402

LARGHEZZA, ALTEZZA = 1024, 768


def main():
    with Schermo(LARGHEZZA, ALTEZZA) as schermo:
        from albero import Albero
        processo = schermo.avvia(os.path.abspath(sys.argv[1]),
                                 env={**os.environ, "QT_SCALE_FACTOR": "2"})
        Albero(processo).aspetta_oggetto("push button", "Avvio")
        finestra = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(processo.pid)],
                                  check=True, capture_output=True, text=True).stdout.split()[0]
        detto = subprocess.run(["xdotool", "getwindowgeometry", "--shell", finestra], check=True,
                               capture_output=True, text=True).stdout
    larga, alta = (int(re.search(rf"^{nome}=(\d+)$", detto, re.M)[1])
                   for nome in ("WIDTH", "HEIGHT"))
    print(f"The window: {larga} by {alta}, on a screen of {LARGHEZZA} by {ALTEZZA}")
    return 0 if larga <= LARGHEZZA and alta <= ALTEZZA else 1


if __name__ == "__main__":
    sys.exit(main())
