"""Whether the program sleeps on the bars after a wrong and a right answer with their sounds.

    suoni.py PROGRAM
"""

import os
import subprocess
import sys
import tempfile
import time

import riposo
from figura import Figura, quanti, stampa

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tools", "prova"))

from schermo import ErroreSchermo, Schermo  # noqa: E402

QUIETE = 5  # seconds after the last event, for a sound to end and its device to close


def gioca(schermo, processo, cartella):
    """Plays the bars. cartella: for the pictures."""
    from albero import Albero
    from giocatore import AVVIO, Giocatore
    from partite import PARTITE
    with open(os.devnull, "w", encoding="ascii") as nulla:
        voce, sys.stdout = sys.stdout, nulla
        try:
            giocatore = Giocatore(schermo, Albero(processo), cartella)
            giocatore.vai(AVVIO)
            PARTITE["barre"].gioca(giocatore)
        finally:
            sys.stdout = voce


def main():
    with Schermo(1366, 768) as schermo, tempfile.TemporaryDirectory() as cartella:
        processo = schermo.avvia(sys.argv[1], stderr=subprocess.DEVNULL)
        gioca(schermo, processo, cartella)
        time.sleep(QUIETE)
        sveglie, parte = riposo.guarda(processo.pid, quanti(10, 3))
        if processo.poll() is not None:
            raise ErroreSchermo(f"the program ended at rest, with {processo.returncode}")
        print(f"{parte:.3f} % of a core")
        stampa(Figura("at rest on the bars, after sounds", "", sveglie, "wake-ups a second", "under",
                      riposo.AL_SECONDO))


if __name__ == "__main__":
    try:
        main()
    except ErroreSchermo as errore:
        sys.exit(str(errore))
