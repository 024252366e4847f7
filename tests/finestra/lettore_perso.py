#!/usr/bin/python3
"""Answers sums while the screen reader Orca is absent, starts after the program, hangs, is ended.

    lettore_perso.py <program>

Ends with 0 when each sum was judged within some seconds of its key, the reader told the verdict of
those that it was there for, and the program said nothing on the error stream.
"""

import os
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../tools/prova"))

from giocatore import AVVIO, Giocatore, trova  # noqa: E402
from lettore import Lettore  # noqa: E402
from partite_numeri import MENU, SOMMA  # noqa: E402
from schermo import Schermo  # noqa: E402

# Whoever waits for a reader that has gone waits for 25.
ENTRO = 10  # seconds from the first key to the verdict
# The line about a machine without sound comes when it comes.
SUONO = "No sound:"


class Paziente(Giocatore):
    """Answers sums, and notes what took too long."""

    def __init__(self, *argomenti):
        super().__init__(*argomenti)
        self.guai = []

    def fotografa(self, nome):
        pass

    def somma(self, quando, lettore=None):
        """A sum and the way on. lettore: must tell the verdict. Gives the seconds that it took."""
        risposta = trova(self.chiesta())
        prima = time.monotonic()
        self.rispondi(risposta, self.batti_numero, giusto=True)
        secondi = time.monotonic() - prima
        print(f"{quando}: {secondi:.2f} s to the verdict", flush=True)
        if secondi > ENTRO:
            self.guai.append(f"{quando}: {secondi:.2f} s to the verdict")
        if lettore:
            frase = f"Giusto. Esatti {self.conta('Esatti')}"
            self.albero.aspetta(f"{frase!r} to be said", lambda: any(
                frase in parole for _, _, parole in lettore.detto()))
        self.avanti("space")


def gioca(schermo, programma, cartella):
    """What was not as it should."""
    from albero import Albero
    processo = schermo.avvia(programma, stderr=subprocess.PIPE, text=True)
    giocatore = Paziente(schermo, Albero(processo), cartella)
    giocatore.vai(AVVIO)
    giocatore.apri("FormNumeriTotale", MENU, SOMMA)
    giocatore.somma("without a reader")
    lettore = Lettore(schermo, cartella)
    giocatore.somma("with a reader that came late", lettore)
    # The toolkit shows each key to the reader first, and waits for it a tenth of a second.
    lettore.incanta()
    giocatore.somma("with one that hangs")
    lettore.termina()
    for _ in range(3):
        giocatore.somma("after its end")
    lettore.avvia()
    giocatore.somma("with a new one", lettore)
    giocatore.mani.batti("alt+F4")
    _, righe = processo.communicate(timeout=20)
    if processo.returncode != 0:
        giocatore.guai.append(f"the program ended with {processo.returncode}")
    dette = [r for r in righe.splitlines() if not r.startswith(SUONO)]
    return giocatore.guai + [f"told on the error stream: {r}" for r in dette]


def main():
    with tempfile.TemporaryDirectory() as cartella, Schermo() as schermo:
        guai = gioca(schermo, schermo.copia(sys.argv[1]), cartella)
    print("\n".join(guai), file=sys.stderr)
    return 1 if guai else 0


if __name__ == "__main__":
    sys.exit(main())
