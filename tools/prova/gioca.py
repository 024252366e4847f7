#!/usr/bin/python3
"""Plays one exercise of the program on a virtual display, as a pupil would, with mouse and keys.

    gioca.py <program> <folder for the pictures> [<exercise> [<stand-in for the touch surface>]]

The exercises are those of partite.py; without one it is "barre". What is asked is read from
outside, through the accessibility tree; the answers are worked out from it. Ends with 0 when the
program took and judged every answer as it should.
"""

import contextlib
import os
import signal
import sys

from giocatore import AVVIO, Errore, Giocatore
from partite import PARTITE
from schermo import ErroreSchermo, Schermo
from tavoletta import ErroreTavoletta, Tavoletta


def gioca(programma, cartella, nome, tavoletta):
    """One exercise, from the start of the program to its end. Returns whether all was well."""
    partita = PARTITE[nome]
    superficie = Tavoletta(tavoletta) if partita.a_tocchi else contextlib.nullcontext()
    with Schermo() as schermo, superficie as tocchi:
        from albero import Albero, TempoScaduto
        processo = schermo.avvia(schermo.copia(programma))
        giocatore = Giocatore(schermo, Albero(processo), cartella, tocchi)
        try:
            giocatore.vai(AVVIO)
            partita.gioca(giocatore)
            giocatore.chiudi(processo)
            if set(giocatore.forme) != partita.forme:
                raise Errore(f"played {giocatore.forme}, not {sorted(partita.forme)}")
        except (TempoScaduto, Errore, ErroreTavoletta) as errore:
            print(f"Failed on {giocatore.forme[-1:] or AVVIO}: {errore}", file=sys.stderr)
            giocatore.fotografa("errore")
            return False
    return True


def main():
    nome = sys.argv[3] if len(sys.argv) > 3 else "barre"
    tavoletta = sys.argv[4] if len(sys.argv) > 4 else ""
    if (not 3 <= len(sys.argv) <= 5 or nome not in PARTITE
            or PARTITE[nome].a_tocchi != bool(tavoletta)):
        print(__doc__, file=sys.stderr)
        print("Exercises: " + ", ".join(PARTITE), file=sys.stderr)
        return 2
    programma, cartella = sys.argv[1:3]
    sys.stdout.reconfigure(line_buffering=True)
    # Ended from outside, it still leaves through the end of the Schermo.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    try:
        return 0 if gioca(programma, cartella, nome, tavoletta) else 1
    except (ErroreSchermo, ErroreTavoletta) as errore:
        print(f"Failed: {errore}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
