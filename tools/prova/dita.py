"""A hand on the touch surface: one touch after the other, each once the last has been taken."""

import time

from giocatore import BOTTONE, TESTO

# Keys of the sheet of digits; a digit's key is its number and one more.
CESTINO, AIUTO, CONFERMA, AVANTI = 13, 14, 15, 16


class Dita:
    """Touches the keys of the sheet that lies on the surface."""

    PAUSA = 0.3  # seconds between two touches: two that come together are one

    def __init__(self, giocatore):
        self._albero, self._tavoletta = giocatore.albero, giocatore.tavoletta

    def tocca(self, tasto, volte=1):
        for _ in range(volte):
            time.sleep(self.PAUSA)
            self._tavoletta.fai(f"tasto {tasto}")
            self._tavoletta.aspetta("mandato")

    def componi(self, numero):
        """Empties the box, writes a number digit by digit, confirms it."""
        self.tocca(CESTINO)
        self._aspetta_scritto("")
        for i, cifra in enumerate(str(numero), 1):
            self.tocca(int(cifra) + 1)
            self._aspetta_scritto(str(numero)[:i])
        self.tocca(CONFERMA)

    def avanti(self):
        """Goes on to the next case, once the way is open."""
        bottone = self._albero.aspetta_oggetto(BOTTONE, "avanti")
        self._albero.aspetta("the way on to open", lambda: bottone.abilitato)
        self.tocca(AVANTI)

    def _aspetta_scritto(self, testo):
        self._albero.aspetta(f"{testo!r} in the box", lambda: any(
            o.ruolo == TESTO and o.testo == testo for o in self._albero.visibili()))
