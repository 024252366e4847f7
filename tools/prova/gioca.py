#!/usr/bin/python3
"""Plays exercises of the program on a virtual display, as a pupil would.

    gioca.py <program> <folder for the pictures> [<exercise> ...] [--mani MANI] [--tavoletta FILE]
             [--schermo DESKTOP] [--scala N]

The exercises are those of partite.py, played one after the other; without one it is "barre". MANI
are the hands: "mouse" and keys together, "tasti", keys alone, or "ausili", what assistive technology
can do alone; the last two play one case of each form. FILE is the stand-in for the touch surface,
which some exercises want. DESKTOP is one of schermo_wayland.py, "x11" where none is named; N are the
pixels of the display for one of the program. What is asked is read from outside, through the accessibility tree; the
answers are worked out from it. Ends with 0 when the program took and judged every answer as it
should.
"""

import argparse
import contextlib
import os
import signal
import sys

from giocatore import AVVIO, Errore, Giocatore
from partite import PARTITE
from schermo import ErroreSchermo
from schermo_wayland import schermo as schermo_di
from senza_mouse import SoloAusili, SoloTasti
from tavoletta import ErroreTavoletta, Tavoletta

MANI = {"mouse": Giocatore, "tasti": SoloTasti, "ausili": SoloAusili}


def gioca(scelte, partite):
    """The exercises, from the start of the program to its end. Returns whether all was well."""
    superficie = Tavoletta(scelte.tavoletta) if scelte.tavoletta else contextlib.nullcontext()
    with schermo_di(scelte.schermo, scala=scelte.scala) as schermo, superficie as tocchi:
        from albero import TempoScaduto
        processo = schermo.avvia(schermo.copia(scelte.programma))
        giocatore = MANI[scelte.mani](schermo, schermo.albero(processo), scelte.cartella, tocchi)
        try:
            giocatore.vai(AVVIO)
            for i, partita in enumerate(partite):
                if i > 0:
                    giocatore.al_menu()
                giocatore.tavoletta = tocchi if partita.a_tocchi else None
                (partita.gioca if scelte.mani == "mouse" else partita.caso)(giocatore)
            giocatore.chiudi(processo)
            forme = frozenset().union(*(p.forme for p in partite))
            if set(giocatore.forme) != forme:
                raise Errore(f"played {giocatore.forme}, not {sorted(forme)}")
        except (TempoScaduto, Errore, ErroreTavoletta) as errore:
            print(f"Failed on {giocatore.forme[-1:] or AVVIO}: {errore}", file=sys.stderr)
            schermo.fotografa(os.path.join(scelte.cartella, "errore.png"))
            return False
    return True


def main():
    opzioni = argparse.ArgumentParser(description=__doc__,
                                      formatter_class=argparse.RawDescriptionHelpFormatter)
    opzioni.add_argument("programma")
    opzioni.add_argument("cartella")
    opzioni.add_argument("partite", nargs="*", metavar="esercizio")
    opzioni.add_argument("--mani", choices=MANI, default="mouse")
    opzioni.add_argument("--tavoletta", default="")
    opzioni.add_argument("--schermo", default="x11")
    opzioni.add_argument("--scala", type=float, default=1)
    scelte = opzioni.parse_args()
    ignote = sorted({*scelte.partite} - {*PARTITE})
    if ignote:
        opzioni.error(f"no exercises: {ignote}; there are {', '.join(PARTITE)}")
    partite = [PARTITE[nome] for nome in scelte.partite or ["barre"]]
    if any(p.a_tocchi for p in partite) and not scelte.tavoletta:
        opzioni.error("an exercise by touch wants --tavoletta")
    sys.stdout.reconfigure(line_buffering=True)
    # Ended from outside, it still leaves through the end of the Schermo.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    try:
        return 0 if gioca(scelte, partite) else 1
    except (ErroreSchermo, ErroreTavoletta) as errore:
        print(f"Failed: {errore}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
