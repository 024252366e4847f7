#!/usr/bin/python3
"""Plays one exercise of the program on a virtual display, as a pupil would, with mouse and keys.

    gioca.py <program> <folder for the pictures>

What is asked is read from outside, through the accessibility tree; the answers are worked out from
it. Ends with 0 when the program took and judged every answer as it should.
"""

import os
import re
import signal
import subprocess
import sys

from mani import Mani
from schermo import ErroreSchermo, Schermo

# How the controls are called in the accessibility tree, in one place: role and name.
BOTTONE = "push button"
ETICHETTA = "label"
AVVIO = "Avvio"
# The road from the splash form to the exercise, button by button.
STRADA = ["Uso delle barre", "Fino al 10"]
AVANTI = "avanti"
NUMERI = [str(n) for n in range(11)]
PIU, UGUALE = "+", "="
# The counters: one word, then the number.
ESATTI, ERRATI = "Esatti", "Errati"


class Errore(Exception):
    """The program did something else than it should; the text says what."""


class Giocatore:
    def __init__(self, schermo, albero, cartella):
        self._schermo = schermo
        self._albero = albero
        self._mani = Mani()
        self._cartella = cartella
        self._foto = 0

    def fotografa(self, nome):
        self._foto += 1
        percorso = os.path.join(self._cartella, f"{self._foto}-{nome}.png")
        self._schermo.fotografa(percorso)
        print(f"  picture: {percorso}")

    def premi(self, nome):
        """A click of the mouse on a button that is enabled."""
        bottone = self._albero.aspetta_oggetto(BOTTONE, nome)
        self._albero.aspetta(f"{nome!r} to be enabled", lambda: bottone.abilitato)
        self._mani.clicca(bottone.posto)

    def somma(self):
        """The written sum: three texts from left to right, the one that is asked for empty.

        None while it is not on the screen.
        """
        etichette = [o for o in self._albero.visibili() if o.ruolo == ETICHETTA]
        piu = next((o for o in etichette if o.nome == PIU), None)
        uguale = next((o for o in etichette if o.nome == UGUALE), None)
        if piu is None or uguale is None:
            return None
        alto = piu.posto[1]
        x_piu, x_uguale = piu.posto[0], uguale.posto[0]
        termini = ["", "", ""]
        for etichetta in etichette:
            x, y, _, _ = etichetta.posto
            if abs(y - alto) <= 2 and x not in (x_piu, x_uguale):
                dove = 0 if x < x_piu else 1 if x < x_uguale else 2
                termini[dove] = etichetta.nome.strip()
        return termini

    def domanda(self):
        """Waits for a sum of which one term is asked for; the terms and the answer."""
        def aperta():
            termini = self.somma()
            return termini if termini and termini.count("") == 1 else None
        termini = self._albero.aspetta("a sum with a term to be found", aperta)
        a, b, c = (int(t) if t else None for t in termini)
        risposta = c - b if a is None else c - a if b is None else a + b
        print("Asked:    " + scrivi(termini))
        return termini, risposta

    def conta(self, parola):
        """The number of a counter, None where it is not on the screen."""
        for oggetto in self._albero.visibili():
            trovato = re.fullmatch(parola + r"\s+(\d+)", oggetto.nome)
            if oggetto.ruolo == ETICHETTA and trovato:
                return int(trovato[1])
        return None

    def rispondi(self, numero, giusto):
        prima = {parola: self.conta(parola) for parola in (ESATTI, ERRATI)}
        cambia, resta = (ESATTI, ERRATI) if giusto else (ERRATI, ESATTI)
        self.premi(NUMERI[numero])
        self._albero.aspetta(f"the counter {cambia!r} to go up",
                             lambda: self.conta(cambia) == prima[cambia] + 1)
        if self.conta(resta) != prima[resta]:
            raise Errore(f"the counter {resta!r} changed with the answer {numero}")
        print(f"Answered: {numero}, {'right' if giusto else 'wrong'}"
              f" ({ESATTI} {self.conta(ESATTI)}, {ERRATI} {self.conta(ERRATI)})")

    def gioca(self):
        self._albero.aspetta_oggetto(BOTTONE, AVVIO)
        self.fotografa("avvio")
        self.premi(AVVIO)
        for bottone in STRADA:
            self._albero.aspetta_oggetto(BOTTONE, bottone)
            self.fotografa(bottone.lower().replace(" ", "-"))
            self.premi(bottone)

        termini, risposta = self.domanda()
        self.fotografa("domanda")
        self.rispondi((risposta + 1) % len(NUMERI), giusto=False)
        self.fotografa("sbagliato")
        self.rispondi(risposta, giusto=True)
        termini[termini.index("")] = str(risposta)
        self._albero.aspetta("the whole sum", lambda: self.somma() == termini)
        print("Solved:   " + scrivi(termini))
        self.fotografa("giusto")

        avanti = self._albero.aspetta_oggetto(BOTTONE, AVANTI)
        self._albero.aspetta(f"the focus on {AVANTI!r}", lambda: avanti.ha_il_fuoco)
        self._mani.batti("space")
        _, risposta = self.domanda()
        self.rispondi(risposta, giusto=True)
        self._albero.aspetta(f"the focus on {AVANTI!r}", lambda: avanti.ha_il_fuoco)
        self.fotografa("secondo")
        self._mani.batti("Return")
        self.domanda()

    def chiudi(self, processo):
        """Closes the window as the window manager does; the program ends by itself."""
        self._mani.batti("alt+F4")
        try:
            stato = processo.wait(20)
        except subprocess.TimeoutExpired:
            raise Errore("the window was closed and the program goes on") from None
        if stato != 0:
            raise Errore(f"the program ended with {stato}")
        print("The window was closed and the program ended.")


def scrivi(termini):
    a, b, c = (t or "?" for t in termini)
    return f"{a} {PIU} {b} {UGUALE} {c}"


def main():
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    programma, cartella = sys.argv[1:]
    sys.stdout.reconfigure(line_buffering=True)
    # Ended from outside, it still leaves through the end of the Schermo.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    try:
        with Schermo() as schermo:
            from albero import Albero, TempoScaduto
            processo = schermo.avvia(os.path.abspath(programma))
            giocatore = Giocatore(schermo, Albero(processo), cartella)
            try:
                giocatore.gioca()
                giocatore.chiudi(processo)
            except (TempoScaduto, Errore) as errore:
                print(f"Failed: {errore}", file=sys.stderr)
                giocatore.fotografa("errore")
                return 1
    except ErroreSchermo as errore:
        print(f"Failed: {errore}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
