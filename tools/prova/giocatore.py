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
ESCI = "Esci"
TORNA = "Torna al menù principale"
CONFERMA_MESSAGGIO = "OK"
# The kinds of input: the shortcut of the menu item that chooses one, and its words.
SCANSIONE = "ctrl+m", "scansione manuale"
TOCCO = "ctrl+h", "Tastiera HelpiKeys"
STRADA_DEI_MODI = ("Impostazioni", "Modalità di input")
# The counters: one word, then the number.
ESATTI, ERRATI = "Esatti", "Errati"


# Seconds from one form to a click on the next: two clicks on one spot that come sooner are a double
# click of the desktop, whose second half the next form does not take.
PAUSA_FORMA = 1


class Errore(Exception):
    """The program did something else than it should; the text says what."""


def scrivi(termini):
    a, b, c = (t or "?" for t in termini)
    return f"{a} + {b} = {c}"


def trova(termini):
    """The answer to a sum: three texts, the one that is asked for empty."""
    a, b, c = (int(t) if t else None for t in termini)
    return c - b if a is None else c - a if b is None else a + b


class Giocatore:
    """What a pupil does on any form. What is asked and how it is answered differs: see partite.

    forme: the names of the exercise forms that were opened, the one that is being played last.
    """

    def __init__(self, schermo, albero, cartella, tavoletta=None):
        """cartella: where the pictures go. tavoletta: the touch surface, for who plays by touch."""
        self.albero = albero
        self.tavoletta = tavoletta
        self.mani = Mani(lambda: schermo.scarto(albero))
        self.forme = []
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

    def apri(self, forma, *strada, modo=None):
        """From a menu to an exercise form, button by button.

        modo: the kind of input, SCANSIONE or TOCCO, chosen on the main menu at the start.
        """
        self.forme.append(forma)
        print(f"Form:     {forma}")
        if modo:
            self.albero.aspetta_oggetto(BOTTONE, strada[0])
            self.scegli_modo(modo)
        for bottone in strada:
            self.vai(bottone)

    def scegli_modo(self, modo):
        """Chooses a kind of input on the main menu."""
        scorciatoia, _ = modo
        self.mani.batti(scorciatoia)

    def al_menu(self):
        """From wherever a game has ended to the main menu, which alone has a button that ends all."""
        if self.albero.cerca(VOCE, ESCI):
            self.premi(ESCI, VOCE)
        self.albero.aspetta("a menu", lambda: self.albero.cerca(BOTTONE, TORNA)
                            or self.albero.cerca(BOTTONE, ESCI))
        if self.albero.cerca(BOTTONE, TORNA):
            self.premi(TORNA)
        self.albero.aspetta_oggetto(BOTTONE, ESCI)

    def collega(self):
        """Has the touch surface answer, and closes the box that says so."""
        self.premi(CONFERMA_MESSAGGIO)
        self.albero.aspetta("the box to close", lambda: not self.albero.cerca(
            BOTTONE, CONFERMA_MESSAGGIO))

    def esci(self, bottone):
        """Leaves the exercise for the menu that has this button."""
        self.premi(ESCI, VOCE)
        if self.tavoletta:
            self.tavoletta.aspetta("ricevuto 02#REQ-DEFAULT")
            self.tavoletta.aspetta("staccata")
        self.albero.aspetta_oggetto(BOTTONE, bottone)
        print(f"Left:     {self.forme[-1]}")

    def etichette(self):
        return [o for o in self.albero.visibili() if o.ruolo == ETICHETTA]

    def conteggi(self):
        """What the counters show in one moment, by their words; None for one that is not on the screen."""
        testo = "\n".join(etichetta.nome for etichetta in self.etichette())
        trovati = {parola: re.search(rf"^{parola}\s+(\d+)$", testo, re.MULTILINE)
                   for parola in (ESATTI, ERRATI)}
        return {parola: trovato and int(trovato[1]) for parola, trovato in trovati.items()}

    def conta(self, parola):
        """The number of one counter."""
        return self.conteggi()[parola]

    def termini(self):
        """The written sum, where one term is asked for: three texts, that one empty."""
        for etichetta in self.etichette():
            trovato = re.search(r"(\d+|_+) *\+ *(\d+|_+) *= *(\d*) *$", etichetta.nome)
            if trovato:
                termini = [t.strip("_") for t in trovato.groups()]
                return termini if termini.count("") == 1 else None
        return None

    def chiesta(self, leggi=None):
        """Waits for a sum and returns its terms.

        leggi: reads them as termini() does, on a form that writes its sum in another way.
        """
        termini = self.albero.aspetta("a sum with a term to be found", leggi or self.termini)
        print("Asked:    " + scrivi(termini))
        return termini

    def prova(self, risposta, dai):
        """A wrong answer, then the right one; dai as for rispondi()."""
        self.fotografa("domanda")
        self.rispondi(risposta - 1 if risposta > 1 else risposta + 1, dai, giusto=False)
        self.fotografa("sbagliato")
        self.rispondi(risposta, dai, giusto=True)
        self.fotografa("giusto")

    def batti_numero(self, numero):
        """Writes a number in place of what stands in the box that has the keyboard; Enter."""
        for tasto in ("ctrl+a", *str(numero), "Return"):
            self.mani.batti(tasto)

    def batti_nella_casella(self, numero):
        """The same where a wrong answer stands in the box until a click opens it again."""
        casella = next(o for o in self.albero.visibili() if o.ruolo in (TESTO, "panel"))
        self.mani.clicca(casella.posto)
        self.batti_numero(numero)

    def premi_con_la_lettera(self, nome, lettera):
        """Works a button by its letter, which leaves the focus where it is."""
        oggetto = self.albero.aspetta_oggetto(BOTTONE, nome)
        self.albero.aspetta(f"{nome!r} to be enabled", lambda: oggetto.abilitato)
        self.mani.batti(f"alt+{lettera}")

    def si_dice(self, che_cosa, parole):
        """The program tells these words now; who listens (see ascoltata.py) must hear them."""

    def contano(self, esatti, errati):
        """The counters stand so and not otherwise."""
        contati = tuple(self.conteggi().values())
        if contati != (esatti, errati):
            raise Errore(f"the counters tell {contati} right and wrong answers, not"
                         f" {(esatti, errati)}")

    def rispondi(self, risposta, dai, giusto):
        """Gives an answer and waits for the verdict.

        dai: gives it, as the form takes answers. giusto: what the verdict must be.
        """
        prima = self.conteggi()
        cambia, resta = (ESATTI, ERRATI) if giusto else (ERRATI, ESATTI)
        dai(risposta)

        def salito():
            poi = self.conteggi()
            return poi if poi[cambia] == prima[cambia] + 1 else None
        poi = self.albero.aspetta(f"the counter {cambia!r} to go up", salito)
        if poi[resta] != prima[resta]:
            raise Errore(f"the counter {resta!r} changed with the answer {risposta}")
        print(f"Answered: {risposta}, {'right' if giusto else 'wrong'}"
              f" ({ESATTI} {poi[ESATTI]}, {ERRATI} {poi[ERRATI]})")

    def avanti(self, tasto):
        """On to the next case by a key; after a right answer the focus is where it leads on."""
        self.premi_col_fuoco(AVANTI, tasto)

    def premi_col_fuoco(self, nome, tasto):
        """Waits for the focus on a button and presses it there by a key."""
        bottone = self.albero.aspetta_oggetto(BOTTONE, nome)
        self.albero.aspetta(f"the focus on {nome!r}", lambda: bottone.ha_il_fuoco)
        self.mani.batti(tasto)

    def tasto(self, nome):
        """A tap of a key of those who have one or two, on a scanning keyboard."""
        self.mani.batti(nome)

    def ascolta(self):
        """Begins to hear what a screen reader hears of the focus."""
        return Ascolto(self.albero.processo)

    def chiudi(self, processo):
        """Closes the window as the window manager does; the program ends by itself."""
        if self._schermo.chiude_finestre:
            self.mani.batti("alt+F4")
        else:
            self.al_menu()
            self.premi(ESCI)
        self._finito(processo)
        print("The window was closed and the program ended.")

    @staticmethod
    def _finito(processo):
        """Waits for the end of the program, which it was asked for."""
        try:
            stato = processo.wait(20)
        except subprocess.TimeoutExpired:
            raise Errore("the program was asked to end and goes on") from None
        if stato != 0:
            raise Errore(f"the program ended with {stato}")
