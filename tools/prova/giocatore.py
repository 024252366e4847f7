"""Who plays the program: looks at it through the accessibility tree, works it with mouse and keys."""

import os
import re
import subprocess
import time

from ascolto import Ascolto
from mani import Mani

# How the controls are called in the accessibility tree, in one place: role and name.
BOTTONE = "push button"
ETICHETTA = "label"
VOCE = "menu item"
TESTO = "text"
AVVIO = "Avvio"
AVANTI = "avanti"
# The counters: one word, then the number.
ESATTI, ERRATI = "Esatti", "Errati"


# Seconds from one form to a click on the next: two clicks on one spot that come sooner are a double
# click of the desktop, whose second half the next form does not take.
PAUSA_FORMA = 1


class Errore(Exception):
    """The program did something else than it should; the text says what."""


class Giocatore:
    """What a pupil does on any form. What is asked and how it is answered differs: see partite."""

    def __init__(self, schermo, albero, cartella, tavoletta=None):
        """cartella: where the pictures go. tavoletta: the touch surface, for who plays by touch."""
        self.albero = albero
        self.tavoletta = tavoletta
        self.mani = Mani()
        self._schermo = schermo
        self._cartella = cartella
        self._foto = 0

    def fotografa(self, nome):
        self._foto += 1
        percorso = os.path.join(self._cartella, f"{self._foto}-{nome}.png")
        self._schermo.fotografa(percorso)
        print(f"  picture: {percorso}")

    def premi(self, nome, ruolo=BOTTONE):
        """A click of the mouse on a button or menu item that is enabled."""
        oggetto = self.albero.aspetta_oggetto(ruolo, nome)
        self.albero.aspetta(f"{nome!r} to be enabled", lambda: oggetto.abilitato)
        self.mani.clicca(oggetto.posto)

    def vai(self, bottone):
        """Through a form that has just come, by the button that leads on."""
        self.albero.aspetta_oggetto(BOTTONE, bottone)
        self.fotografa(re.sub(r"\W+", "-", bottone.lower()))
        time.sleep(PAUSA_FORMA)
        self.premi(bottone)

    def segui(self, strada):
        """From the splash form to an exercise, button by button."""
        for bottone in [AVVIO, *strada]:
            self.vai(bottone)

    def etichette(self):
        return [o for o in self.albero.visibili() if o.ruolo == ETICHETTA]

    def conta(self, parola):
        """The number of a counter, None where it is not on the screen."""
        for etichetta in self.etichette():
            trovato = re.fullmatch(parola + r"\s+(\d+)", etichetta.nome)
            if trovato:
                return int(trovato[1])
        return None

    def rispondi(self, risposta, dai, giusto):
        """Gives an answer and waits for the verdict.

        dai: gives it, as the form takes answers. giusto: what the verdict must be.
        """
        prima = {parola: self.conta(parola) for parola in (ESATTI, ERRATI)}
        cambia, resta = (ESATTI, ERRATI) if giusto else (ERRATI, ESATTI)
        dai(risposta)
        self.albero.aspetta(f"the counter {cambia!r} to go up",
                            lambda: self.conta(cambia) == prima[cambia] + 1)
        if self.conta(resta) != prima[resta]:
            raise Errore(f"the counter {resta!r} changed with the answer {risposta}")
        print(f"Answered: {risposta}, {'right' if giusto else 'wrong'}"
              f" ({ESATTI} {self.conta(ESATTI)}, {ERRATI} {self.conta(ERRATI)})")

    def avanti(self, tasto):
        """On to the next case by a key; after a right answer the focus is where it leads on."""
        bottone = self.albero.aspetta_oggetto(BOTTONE, AVANTI)
        self.albero.aspetta(f"the focus on {AVANTI!r}", lambda: bottone.ha_il_fuoco)
        self.mani.batti(tasto)

    def ascolta(self):
        """Begins to hear what a screen reader hears of the focus."""
        return Ascolto(self.albero.processo)

    def chiudi(self, processo):
        """Closes the window as the window manager does; the program ends by itself."""
        self.mani.batti("alt+F4")
        try:
            stato = processo.wait(20)
        except subprocess.TimeoutExpired:
            raise Errore("the window was closed and the program goes on") from None
        if stato != 0:
            raise Errore(f"the program ended with {stato}")
        print("The window was closed and the program ended.")
