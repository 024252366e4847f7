#!/usr/bin/python3
"""Starts the program on a light desktop, on a dark one and on one of high contrast, and looks at it.

    scuro.py <program>

The desktop gives its colours as KDE's does, in a file. Ends with 0 when forms, an open menu and a panel
look the same on all three.
"""

import os
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../tools/prova"))

from mani import Mani  # noqa: E402
from schermo import Schermo  # noqa: E402
from senza_bus import cambia  # noqa: E402

# Ground and letters.
DESKTOP = {"light": ("239,240,241", "35,38,41"), "dark": ("35,38,41", "239,240,241"),
           "high contrast": ("0,0,0", "255,255,0")}
PARTI = ("Button", "Selection", "Tooltip", "View", "Window")
MENU = "the first title of the menu bar"
# What is pressed, and what is then to be seen.
VISTE = (("Return", "the main menu"), (MENU, "an open menu"), ("Escape", "the menu closed"),
         ("ctrl+t", "the panel of the scanning time"), ("Return", "the panel closed"),
         ("Return", "the menu of the bars"))


def scrivi_colori(cartella, fondo, lettere):
    """The file of the desktop's colours in a folder for settings."""
    with open(os.path.join(cartella, "kdeglobals"), "w", encoding="utf-8") as file:
        for parte in PARTI:
            file.write(f"[Colors:{parte}]\nBackgroundNormal={fondo}\nBackgroundAlternate={fondo}\n"
                       f"ForegroundNormal={lettere}\nForegroundInactive={lettere}\n"
                       f"ForegroundLink={lettere}\nForegroundVisited={lettere}\n")


def guarda(schermo, programma, fondo, lettere):
    """Goes through the program; gives what was seen, in short, in its order."""
    from albero import Albero
    with tempfile.TemporaryDirectory() as cartella:
        scrivi_colori(cartella, fondo, lettere)
        ambiente = {**os.environ, "XDG_CONFIG_HOME": cartella, "XDG_CURRENT_DESKTOP": "KDE",
                    "KDE_SESSION_VERSION": "5", "KDE_FULL_SESSION": "true"}
        mani = Mani()
        vista = cambia(None)
        processo = schermo.avvia(programma, env=ambiente)
        viste = [vista := cambia(vista)]
        for tasto, _ in VISTE:
            if tasto == MENU:
                mani.clicca(Albero(processo).aspetta_oggetto("menu item", "Impostazioni").posto)
            else:
                mani.batti(tasto)
            viste.append(vista := cambia(vista))
        processo.termina()
        cambia(vista)
    return viste


def main():
    nomi = ["the first form"] + [nome for _, nome in VISTE]
    guai = []
    with Schermo(1024, 768) as schermo:
        programma = schermo.copia(sys.argv[1])
        viste = {nome: guarda(schermo, programma, *colori) for nome, colori in DESKTOP.items()}
    for desktop in ("dark", "high contrast"):
        for i, nome in enumerate(nomi):
            uguale = viste[desktop][i] == viste["light"][i]
            print(f"{desktop}, {nome}: {'the same' if uguale else 'ANOTHER PICTURE'}")
            if not uguale:
                guai.append(nome)
    return 1 if guai else 0


if __name__ == "__main__":
    sys.exit(main())
