"""Plain numbers, each form by its own kind of input: a wrong and a right answer, the way on."""

import time

from dita import Dita
from giocatore import BOTTONE, SCANSIONE, TESTO, TOCCO, VOCE, Errore, trova
from luce import Luce

MENU = "Solo numeri"
# Two-digit sums, sums up to 10, the second addend to be found.
SOMMA, SOMMA_BREVE, ADDENDO = "con e senza cambio", "somme", "trova un addendo"
CANCELLA, CONFERMA, AVANTI = "Cancella", "Conferma", "Avanti"


def numeri(giocatore):
    """The sum with the keys and its record; from the menu again, the addend."""
    albero = giocatore.albero
    dai = giocatore.batti_nella_casella

    giocatore.apri("FormNumeriTotale", MENU, SOMMA)
    a, b, _ = termini = giocatore.chiesta()
    totale = trova(termini)
    giocatore.prova(totale, dai)

    giocatore.premi("Stampa", VOCE)
    elenco = albero.aspetta_oggetto(TESTO, "Elenco delle somme risolte")
    righe = [r.split() for r in elenco.testo.splitlines() if "+" in r]
    if righe != [[a, "+", b, "=", str(totale)]]:
        raise Errore(f"the record does not hold the solved case alone: {elenco.testo!r}")
    print("Recorded: " + " ".join(righe[0]))
    giocatore.fotografa("elenco")
    giocatore.premi("Chiudi")
    giocatore.avanti("space")
    giocatore.chiesta()
    giocatore.esci(ADDENDO)

    giocatore.apri("FormNumeriAddendo", ADDENDO)
    giocatore.prova(trova(giocatore.chiesta()), dai)
    giocatore.avanti("Return")
    giocatore.chiesta()
    giocatore.esci(ADDENDO)


class Illuminati:
    """A number form whose digits are scanned; scegli: chooses the key that bears a name."""

    def __init__(self, giocatore, luce, scegli):
        self.giocatore, self.luce, self._scegli = giocatore, luce, scegli

    def chiesta(self):
        """Waits for a case and for the light at its start; returns the answer."""
        risposta = trova(self.giocatore.chiesta())
        self.aspetta("0")
        return risposta

    def dai(self, numero):
        for nome in (*str(numero), CONFERMA):
            self._scegli(nome)

    def aspetta(self, nome):
        self.giocatore.albero.aspetta(f"the light on {nome!r}", lambda: self.luce.acceso() == nome)


def scansione(giocatore):
    """The sum, by manual scanning with two keys, held and tapped, then automatic with one."""
    albero, mani = giocatore.albero, giocatore.mani
    luce = Luce(giocatore)

    giocatore.apri("FormNumeriTotaleScansione", MENU, SOMMA, modo=SCANSIONE)
    gioco = Illuminati(giocatore, luce, luce.scegli_a_mano)
    risposta = gioco.chiesta()
    _ascolta_passi(giocatore, luce)
    giocatore.fotografa("accesa")
    giocatore.rispondi(risposta - 1 if risposta > 1 else risposta + 1, gioco.dai, giusto=False)
    giocatore.fotografa("sbagliato")
    luce.scegli_a_mano(CANCELLA)
    giocatore.rispondi(risposta, gioco.dai, giusto=True)
    gioco.aspetta(AVANTI)
    giocatore.fotografa("giusto")
    mani.batti("Return")
    gioco.chiesta()

    giocatore.esci(SOMMA)
    giocatore.premi("Torna al menù principale")
    albero.aspetta_oggetto(BOTTONE, MENU)
    mani.batti("ctrl+a")
    mani.batti("ctrl+t")
    mani.batti("shift+Tab")
    for _ in range(8):
        mani.batti("Right")
    giocatore.fotografa("tre-secondi")
    mani.batti("Tab")
    mani.batti("Return")
    # One round of the light, at three seconds a key, is enough for most of the short sums.
    giocatore.apri("FormNumeriTotaleScansione", MENU, SOMMA_BREVE)
    gioco = Illuminati(giocatore, luce, luce.scegli_aspettando)
    giocatore.rispondi(gioco.chiesta(), gioco.dai, giusto=True)
    gioco.aspetta(AVANTI)
    time.sleep(4)
    mani.batti("space")
    giocatore.chiesta()
    giocatore.fotografa("automatica")


def _ascolta_passi(giocatore, luce):
    """Six steps, the first of a key held long, and each is heard once."""
    ascolto = giocatore.ascolta()
    luce.passo("space", tieni=1.5)
    for _ in range(5):
        luce.passo("space")
    attesi = [(BOTTONE, str(n)) for n in range(1, 7)]
    giocatore.albero.aspetta("six steps to be heard", lambda: len(ascolto.uditi()) >= 6)
    time.sleep(0.5)
    if ascolto.uditi() != attesi:
        raise Errore(f"heard of six steps: {ascolto.uditi()}")
    ascolto.chiudi()
    print("Heard:    " + " ".join(nome for _, nome in attesi))


def addendo_scansione(giocatore):
    """The addend, by manual scanning."""
    _una_scansione(giocatore, "FormNumeriAddendoScansione", ADDENDO)


def scansione_breve(giocatore):
    """The sum, by manual scanning and without the rest."""
    _una_scansione(giocatore, "FormNumeriTotaleScansione", SOMMA_BREVE)


def _una_scansione(giocatore, forma, livello):
    luce = Luce(giocatore)
    gioco = Illuminati(giocatore, luce, luce.scegli_a_mano)

    def dai(numero):
        # A wrong answer is still in the box.
        if giocatore.conta("Errati"):
            luce.scegli_a_mano(CANCELLA)
        gioco.dai(numero)

    giocatore.apri(forma, MENU, livello, modo=SCANSIONE)
    giocatore.prova(gioco.chiesta(), dai)
    gioco.aspetta(AVANTI)
    luce.usa()
    gioco.chiesta()
    giocatore.esci(ADDENDO)


def tocco(giocatore):
    """Sum and addend by touch, each with a connection of its own."""
    dita = Dita(giocatore)

    def toccata():
        giocatore.collega()
        giocatore.prova(trova(giocatore.chiesta()), dita.componi)
        dita.avanti()
        giocatore.chiesta()
        giocatore.esci(ADDENDO)

    giocatore.apri("FormNumeriTotaleHK", MENU, SOMMA_BREVE, modo=TOCCO)
    toccata()
    giocatore.apri("FormNumeriAddendoHK", ADDENDO)
    toccata()
