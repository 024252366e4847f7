"""Who plays without a mouse: by keys alone, or by what assistive technology can do alone.

The games are those of the others (see partite.py); only the hands differ. No pictures are taken on
the way: they would cost more than the game.
"""

import time

from giocatore import AVVIO, BOTTONE, ESCI, PAUSA_FORMA, STRADA_DEI_MODI, TESTO, VOCE, Errore, Giocatore
from mani import Tastiera

# The keys after which a control counts as one that cannot be reached by them: a hundred cells are
# not gone through one by one.
TROPPI = 40
# Pixels by which the places of like buttons may differ, and seconds in which a key moves the focus.
SCARTO, MOSSA = 3, 0.5


def _freccia(da, a):
    """The arrow key from one button towards another of its kind; None where they are not alike."""
    (x, y, larga, alta), (x_a, y_a, larga_a, alta_a) = da.posto, a.posto
    if da.ruolo != a.ruolo or abs(larga - larga_a) > SCARTO or abs(alta - alta_a) > SCARTO:
        return None
    if abs(y_a - y) > SCARTO:
        return "Down" if y_a > y else "Up"
    return "Right" if x_a > x else "Left"


class _SenzaMouse(Giocatore):
    """What both have in common.

    preme_ogni_cosa: whether what takes no focus can be pressed, too.
    """

    preme_ogni_cosa = False

    def fotografa(self, nome):
        pass

    def vai(self, bottone):
        # What comes while a form is on its way onto the screen is dropped, whoever sends it. The first one
        # waits for the window, too.
        self.albero.aspetta_oggetto(BOTTONE, bottone)
        self.albero.aspetta("a control with the focus", lambda: any(
            oggetto.ha_il_fuoco for oggetto in self.albero.visibili()))
        if bottone == AVVIO:
            time.sleep(PAUSA_FORMA)
        self.premi(bottone)

    def _casella(self):
        """The box that takes a number, None while there is none."""
        return next((o for o in self.albero.visibili() if o.ruolo == TESTO and o.scrivibile), None)


class SoloTasti(_SenzaMouse):
    """Plays by the keyboard alone; the accessibility tree only tells it what has the focus."""

    def __init__(self, *argomenti):
        super().__init__(*argomenti)
        self.mani = Tastiera()

    def premi(self, nome, ruolo=BOTTONE):
        oggetto = self.albero.aspetta_oggetto(ruolo, nome)
        self.albero.aspetta(f"{nome!r} to be enabled", lambda: oggetto.abilitato)
        if ruolo == VOCE:
            self._apri_voce(oggetto)
        else:
            self._porta_il_fuoco(oggetto)
            self.mani.batti("Return")

    def batti_nella_casella(self, numero):
        # Where a wrong answer stands Space opens the box again.
        if not self._casella():
            self.mani.batti("space")
        self.albero.aspetta("a box with the keyboard",
                            lambda: (c := self._casella()) and c.ha_il_fuoco)
        self.batti_numero(numero)

    def _fuoco(self):
        return next((o for o in self.albero.visibili() if o.ha_il_fuoco), None)

    def _porta_il_fuoco(self, oggetto):
        """By arrow keys among like buttons, as far as they lead; by Tab."""
        frecce = True
        for _ in range(TROPPI):
            qui = self.albero.aspetta("a control with the focus", self._fuoco)
            if oggetto.ha_il_fuoco:
                return
            freccia = _freccia(qui, oggetto) if frecce else None
            self.mani.batti(freccia or "Tab")
            frecce = self._lascia(qui, MOSSA if freccia else 20) or not freccia
        raise Errore(f"{oggetto} is not reached by {TROPPI} keys")

    def _lascia(self, oggetto, secondi):
        """Whether the focus leaves an object in that time."""
        fine = time.monotonic() + secondi
        while oggetto.ha_il_fuoco:
            if time.monotonic() > fine:
                return False
            time.sleep(0.02)
        return True

    def _apri_voce(self, voce):
        """An item of the menu bar: by its letter, where it has one, else along the bar."""
        lettera = voce.scorciatoia
        if lettera:
            self.mani.batti(lettera.lower())
            return
        qui = self._entra_nella_barra()
        for _ in range(TROPPI):
            if voce.ha_il_fuoco:
                self.mani.batti("Return")
                return
            self.mani.batti("Right")
            self._lascia(qui, MOSSA)
            qui = self._voce_col_fuoco() or qui
        raise Errore(f"{voce} is not reached along the menu bar")

    def _entra_nella_barra(self):
        """Gives the menu bar the keyboard; the item that has it then."""
        self.mani.batti("alt")
        return self.albero.aspetta("the menu bar to take the keyboard", self._voce_col_fuoco)

    def _voce_col_fuoco(self):
        return next((o for o in self.albero.visibili() if o.ruolo == VOCE and o.ha_il_fuoco), None)


class SoloAusili(_SenzaMouse):
    """Plays by the actions that the tree offers and by the text that it takes, without any key."""

    preme_ogni_cosa = True

    def __init__(self, *argomenti):
        super().__init__(*argomenti)
        self.mani = None
        # What each key of a switch was last found on.
        self._tastiere = {}

    def premi(self, nome, ruolo=BOTTONE):
        oggetto = self.albero.aspetta_oggetto(ruolo, nome)
        self.albero.aspetta(f"{nome!r} to be enabled", lambda: oggetto.abilitato)
        self._fai(oggetto, "Press")

    def premi_col_fuoco(self, nome, tasto):
        self.premi(nome)

    def premi_con_la_lettera(self, nome, lettera):
        self.premi(nome)

    def scegli_modo(self, modo):
        _, parole = modo
        for nome in STRADA_DEI_MODI:
            self._fai(self.albero.aspetta_oggetto(VOCE, nome), "ShowMenu")
        voce = self.albero.aspetta("the kinds of input", lambda: self._voce(parole))
        self._fai(voce, "Press")
        self.albero.aspetta("the menus to close", lambda: not any(
            o.ruolo == "popup menu" for o in self.albero.visibili()))

    def _voce(self, parole):
        """The item of an open menu that bears these words, its shortcut behind them."""
        return next((o for o in self.albero.visibili()
                     if o.ruolo == VOCE and o.nome.split("\t")[0] == parole), None)

    def batti_numero(self, numero):
        casella = self.albero.aspetta("a box to write in", self._casella)
        casella.scrivi(str(numero))
        self._fai(casella, "Press")

    def batti_nella_casella(self, numero):
        # Where a wrong answer stands its press opens the box again.
        if not self._casella():
            risposta = next(o for o in self.albero.visibili() if o.ruolo == TESTO)
            self._fai(risposta, "Press")
        self.batti_numero(numero)

    def tasto(self, nome):
        azione = self._azione(nome)
        # To look through the whole tree at each step would take most of the time of a game.
        tastiera = self._tastiere.get(azione)
        if tastiera and tastiera.visibile and tastiera.fai(azione):
            return
        self._tastiere[azione] = next(o for o in self.albero.visibili() if azione in o.azioni())
        self._fai(self._tastiere[azione], azione)

    def chiudi(self, processo):
        """By the main menu's button; the program may be gone before it has answered."""
        self.al_menu()
        self.albero.aspetta_oggetto(BOTTONE, ESCI).fai("Press")
        self._finito(processo)

    @staticmethod
    def _azione(tasto):
        return {"space": "Space", "Return": "Enter"}[tasto]

    @staticmethod
    def _fai(oggetto, azione):
        if not oggetto.fai(azione):
            raise Errore(f"{oggetto} has no action {azione!r}, only {oggetto.azioni()}")
