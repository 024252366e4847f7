"""What is done with the program for Windows, under Wine: played, closed, started again, printed from."""

import os
import re

from giocatore import AVVIO, BOTTONE, TOCCO, VOCE, Errore, Giocatore, trova
from impronta import impronta
from partite import PARTITE
from schermo_wine import DEV
from tavoletta import Tavoletta

NUMERI = "Solo numeri"
FOGLIO = "Stampa Foglio Tastiera HelpiKeys"


class Prova:
    """The program in its folder, on a desktop of its own."""

    def __init__(self, schermo, programma, cartella):
        self._schermo, self._programma, self._cartella = schermo, programma, cartella

    def avvia(self, tocchi=None):
        processo = self._schermo.avvia(self._programma, cwd="/")
        albero = self._schermo.albero(processo)
        return processo, albero, Giocatore(self._schermo, albero, self._cartella, tocchi)

    def usa(self):
        """A game; the language, kept for the user; a second start; the manual."""
        dove = os.path.dirname(self._programma)
        prima = impronta(dove)
        processo, albero, giocatore = self.avvia()
        giocatore.vai(AVVIO)
        PARTITE["numeri"].gioca(giocatore)
        giocatore.vai("Torna al menù principale")
        albero.aspetta_oggetto(BOTTONE, "Uso delle barre")
        self._seconda()
        giocatore.premi("Lingua", VOCE)
        giocatore.premi("English", VOCE)
        albero.aspetta_oggetto(BOTTONE, "Using bars")
        giocatore.fotografa("lingua")
        scelta = self._schermo.finestre.utente("AppData", "Local", "somme", "LangSetting.ini")
        albero.aspetta("the choice to be kept", lambda: os.path.exists(scelta))
        giocatore.chiudi(processo)

        processo, albero, giocatore = self.avvia()
        giocatore.vai("Start")
        albero.aspetta_oggetto(BOTTONE, "Using bars")
        self._manuale(giocatore, albero)
        giocatore.chiudi(processo)
        with open(scelta, encoding="latin-1", newline="") as file:
            detto = file.read()
        if "CurrentLanguage=English" not in detto or re.search(r"(?<!\r)\n", detto):
            raise Errore(f"{scelta} does not name the language chosen in lines of Windows: {detto!r}")
        if impronta(dove) != prima:
            raise Errore("the folder of the program has changed")
        os.remove(scelta)
        print("The choice is kept for the user; the program's folder is as it was.")

    def _seconda(self):
        """A second start says so in a box, and ends."""
        processo, albero, giocatore = self.avvia()
        giocatore.premi("OK")
        # Wine itself kills what takes long to leave, on a machine that is busy.
        if processo.wait(20) not in (0, -9):
            raise Errore(f"the second start ended with {processo.returncode}")
        processo.uccidi()
        print("A second start was refused.")

    def _manuale(self, giocatore, albero):
        aperto = os.path.join(self._schermo.finestre.radice, "drive_c", "aperto")
        giocatore.premi("Information", VOCE)
        giocatore.premi("documentation", VOCE)
        albero.aspetta("the manual to be opened", lambda: os.path.exists(aperto) and os.path.getsize(aperto))
        with open(aperto, "rb") as file:
            inizio = file.read(5)
        os.remove(aperto)
        if inizio != b"%PDF-":
            raise Errore("what opens documents was not given the manual")
        print("The manual was opened.")

    def stampa(self, dopo):
        """A record and a sheet, to the printer in use. dopo: waits for what a print brings, by its kind."""
        with Tavoletta(os.path.join(DEV, "tools/tavoletta")) as tocchi:
            processo, albero, giocatore = self.avvia(tocchi)
            giocatore.vai(AVVIO)
            giocatore.tavoletta = None
            self._elenco(giocatore, albero, dopo)
            giocatore.tavoletta = tocchi
            self._foglio(giocatore, albero, dopo)
            giocatore.chiudi(processo)

    def _elenco(self, giocatore, albero, dopo):
        giocatore.apri("FormNumeriTotale", NUMERI, "con e senza cambio")
        giocatore.rispondi(trova(giocatore.chiesta()), giocatore.batti_nella_casella, giusto=True)
        giocatore.premi("Stampa", VOCE)
        albero.aspetta_oggetto("text", "Elenco delle somme risolte")
        giocatore.premi("Stampa")
        dopo("elenco")
        giocatore.premi("Chiudi")
        giocatore.al_menu()

    def _foglio(self, giocatore, albero, dopo):
        giocatore.apri("FormNumeriTotaleHK", NUMERI, "con e senza cambio", modo=TOCCO)
        giocatore.collega()
        giocatore.chiesta()
        for voce in ("Tastiera HelpiKeys", FOGLIO):
            if albero.cerca(VOCE, voce):
                giocatore.premi(voce, VOCE)
        giocatore.premi("Sì")
        albero.aspetta_oggetto(BOTTONE, "Proprietà")
        giocatore.fotografa("stampa")
        giocatore.premi("Proprietà")
        giocatore.fotografa("proprietà")
        giocatore.mani.batti("Escape")
        giocatore.premi("A4", "radio button")
        giocatore.premi("Stampa")
        dopo("foglio")
        # The file is there before the dialog goes; what is clicked until then is lost.
        albero.aspetta("the dialog to close", lambda: not albero.cerca(BOTTONE, "Proprietà"))
        giocatore.al_menu()
