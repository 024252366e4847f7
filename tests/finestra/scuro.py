#!/usr/bin/python3
"""Starts the program on a light desktop, on a dark one and on one of high contrast, and looks at it.

    scuro.py <program>

The desktop gives its colours as KDE's does, in a file. Ends with 0 when forms, an open menu and a panel
look the same on all three.
"""

import os
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../tools/prova"))

from albero import Albero  # noqa: E402
from mani import Mani  # noqa: E402
from schermo import Schermo  # noqa: E402
from senza_bus import LIMITE, guarda as sguardo  # noqa: E402

# The seconds without a change after which the light desktop shows all that it is going to show, and those
# that another one has to show the same.
QUIETE = 2
ATTESA = 15
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


def ferma(schermo, prima):
    """Waits until the screen shows something else than before, and then nothing new; gives what."""
    fine = time.monotonic() + LIMITE
    ultima, da = prima, time.monotonic()
    while ultima == prima or time.monotonic() < da + QUIETE:
        if time.monotonic() > fine:
            raise SystemExit("the screen does not change, or does not rest")
        adesso = sguardo(schermo)
        if adesso != ultima:
            ultima, da = adesso, time.monotonic()
    return ultima


def diventa(schermo, attesa):
    """Waits until the screen shows what is awaited; gives what it shows, that or another thing."""
    fine = time.monotonic() + ATTESA
    while (adesso := sguardo(schermo)) != attesa and time.monotonic() < fine:
        pass
    return adesso


def guarda(schermo, mani, programma, colori, attese=None):
    """Goes through the program; gives what was seen, in short, in its order, the empty screen first.

    attese: what the light desktop showed at each step, where that is known.
    """
    viste = [attese[0] if attese else ferma(schermo, None)]

    def segue():
        viste.append(diventa(schermo, attese[len(viste)]) if attese else ferma(schermo, viste[-1]))

    with tempfile.TemporaryDirectory() as cartella:
        scrivi_colori(cartella, *colori)
        ambiente = {**os.environ, "XDG_CONFIG_HOME": cartella, "XDG_CURRENT_DESKTOP": "KDE",
                    "KDE_SESSION_VERSION": "5", "KDE_FULL_SESSION": "true"}
        processo = schermo.avvia(programma, env=ambiente)
        segue()
        for tasto, _ in VISTE:
            if tasto == MENU:
                mani.clicca(Albero(processo).aspetta_oggetto("menu item", "Impostazioni").posto)
            else:
                mani.batti(tasto)
            segue()
        processo.termina()
        diventa(schermo, viste[0])
    return viste


def main():
    nomi = ["the empty screen", "the first form"] + [nome for _, nome in VISTE]
    guai = []
    with Schermo(1024, 768) as schermo:
        programma, mani = schermo.copia(sys.argv[1]), Mani()
        chiare = guarda(schermo, mani, programma, DESKTOP["light"])
        for desktop in ("dark", "high contrast"):
            viste = guarda(schermo, mani, programma, DESKTOP[desktop], chiare)
            for nome, questa, chiara in zip(nomi, viste, chiare):
                print(f"{desktop}, {nome}: {'the same' if questa == chiara else 'ANOTHER PICTURE'}")
                if questa != chiara:
                    guai.append(nome)
    return 1 if guai else 0


if __name__ == "__main__":
    sys.exit(main())
