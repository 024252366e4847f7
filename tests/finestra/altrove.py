#!/usr/bin/python3
"""Lets keys go in a window of another program, and looks whether the next ones arrive.

    altrove.py <program> [<desktop>]

A key is held while another window comes up, let go there, and the other window goes: what was held does
nothing, and the next press of it, or of another key, acts at once, on a form and in a message box. The
desktop is one of schermo_wayland.py, "x11" where none is named. Ends with 0 when all of this holds.
"""

import subprocess
import sys
import time

from primo_tasto import PAUSA_COMPOSITORE, Tasti, fai
from schermo_wayland import schermo as schermo_di

# What is done before the key is held; the key; what is done when it has been let go elsewhere; the lines
# that must have come by then. The first button, which opens the box, has the keyboard.
PROVE = [
    ("Space over a button, then Space", [], "space", [("key", "space"), ("key", "Return")],
     ["box open", "box closed"]),
    ("Space over a button, then Alt+B and Enter", [], "space", [("key", "alt+b"), ("key", "Return")],
     ["box open", "box closed"]),
    ("Space over a box, then Space", [("key", "alt+b")], "space", [("key", "space")],
     ["box open", "box closed"]),
    ("a letter over a box, then Enter", [("key", "alt+b")], "x", [("key", "Return")],
     ["box open", "box closed"]),
    ("Tab over the dialog, then Esc", [("key", "alt+d")], "Tab", [("key", "Escape")],
     ["dialog open", "dialog closed"]),
]


def altrove(schermo, tasti, programma, prova):
    """Returns the lines that the program wrote over one trial."""
    _, prima, tasto, poi, attese = prova
    venute = fai(tasti, prima, [])
    subprocess.run(["xdotool", "keydown", tasto], check=True, timeout=30)
    time.sleep(tasti.pausa)
    # Every desktop here gives the keyboard to the window that has come last.
    altro = Tasti(schermo, programma, False)
    subprocess.run(["xdotool", "keyup", tasto], check=True, timeout=30)
    time.sleep(tasti.pausa)
    altro.chiudi()
    time.sleep(PAUSA_COMPOSITORE)
    return venute + fai(tasti, poi, attese[len(venute):])


def main():
    programma, nome_schermo = (*sys.argv[1:], "x11")[:2]
    sbagliate = 0
    with schermo_di(nome_schermo, 800, 600) as schermo:
        a_fuoco = nome_schermo in ("x11", "wine")
        for prova in PROVE:
            tasti = Tasti(schermo, programma, a_fuoco)
            venute = altrove(schermo, tasti, programma, prova)
            giusto = venute == prova[-1]
            sbagliate += not giusto
            print(f"{nome_schermo}, {prova[0]}: {', '.join(venute) or 'nothing'} {'' if giusto else 'WRONG'}",
                  flush=True)
            tasti.chiudi()
    return 1 if sbagliate else 0


if __name__ == "__main__":
    sys.exit(main())
