"""What a program for Windows shows under Wine, told by the eye in it; see schermo_wine.py."""

import time

from albero import FRESCO, Albero, Oggetto
from schermo_wine import Filo


class OggettoWine(Oggetto):
    """One object, as it was told a moment ago, or else as it is told now."""

    NIENTE = {"ruolo": "", "nome": "", "descrizione": "", "testo": "", "posto": [0, 0, 0, 0],
              "visibile": False, "abilitato": False, "scrivibile": False, "fuoco": False}

    def __init__(self, filo, detto):
        super().__init__(None, None, None)
        self._filo = filo
        self._id = detto["id"]
        self._detto = detto
        self._quando = time.monotonic()

    def _ora(self, che_cosa):
        if time.monotonic() - self._quando > FRESCO:
            self._detto = self._filo.chiedi(f"uno {self._id}") or self.NIENTE
            self._quando = time.monotonic()
        return self._detto[che_cosa]

    nome = property(lambda self: self._ora("nome"))
    descrizione = property(lambda self: self._ora("descrizione"))
    testo = property(lambda self: self._ora("testo"))
    ruolo = property(lambda self: self._ora("ruolo"))
    posto = property(lambda self: tuple(self._ora("posto")))
    visibile = property(lambda self: self._ora("visibile"))
    abilitato = property(lambda self: self._ora("abilitato"))
    scrivibile = property(lambda self: self._ora("scrivibile"))
    ha_il_fuoco = property(lambda self: self._ora("fuoco"))


class AlberoWine(Albero):
    """The tree of one running program."""

    def __init__(self, processo):
        super().__init__(processo)
        self._filo = Filo(processo.occhio)

    def visibili(self):
        return [OggettoWine(self._filo, detto) for detto in self._filo.chiedi("tutti") or ()]
