"""The light of a scanning keyboard, for who plays with one or two keys."""

import time

from giocatore import BOTTONE, Errore


class Luce:
    """Finds the light through the accessibility tree, and moves and uses it by real keys."""

    def __init__(self, giocatore):
        self._giocatore, self._albero, self._mani = giocatore, giocatore.albero, giocatore.mani
        # The keys as they were found last, from the one that was lit on.
        self._tasti = []

    def acceso(self):
        """The key that assistive technology takes for the focus; None where no key has it."""
        # To look through the whole tree at each step would take most of the time of a game.
        if not self._trova():
            self._tasti = [o for o in self._albero.visibili() if o.ruolo == BOTTONE]
            if not self._trova():
                return None
        return self._tasti[0].nome

    def _trova(self):
        """Whether one of the keys is lit; that one is then the first of them."""
        for i, tasto in enumerate(self._tasti):
            if tasto.ha_il_fuoco and tasto.visibile:
                self._tasti = self._tasti[i:] + self._tasti[:i]
                return True
        return False

    def passo(self, tasto, tieni=0.0):
        """One step by a key that is held so many seconds; while it is, nothing moves."""
        prima = self.acceso()
        if tieni:
            self._mani.giu(tasto)
            time.sleep(tieni)
            if self.acceso() != prima:
                raise Errore(f"the light went from {prima!r} to {self.acceso()!r} under a held key")
            self._mani.su(tasto)
        else:
            self._giocatore.tasto(tasto)
        self._albero.aspetta("a step of the light", lambda: self.acceso() not in (None, prima))

    def scegli_a_mano(self, nome):
        mossa = False
        while self.acceso() != nome:
            self.passo("space")
            mossa = True
        if mossa:
            self._si_dice(nome)
        self.usa()

    def _si_dice(self, nome):
        self._giocatore.si_dice("key", f"{nome} {BOTTONE}")

    def usa(self):
        """Chooses what is lit, in manual scanning."""
        self._giocatore.tasto("Return")

    def scegli_aspettando(self, nome):
        self._albero.aspetta(f"the light on {nome!r}", lambda: self.acceso() == nome, 60)
        self._si_dice(nome)
        self._mani.giu("space")
        time.sleep(4)
        if self.acceso() != nome:
            raise Errore(f"the light went on from {nome!r} under a held key")
        self._mani.su("space")
