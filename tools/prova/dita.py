"""A hand on the touch surface: one touch after the other, each once the last has been taken."""

import time

from giocatore import BOTTONE, TESTO

# What stands on keys of the sheets.
CESTINO, CONFERMA, AVANTI = "cestino", "conferma", "avanti"
DA_IN_H, U_IN_DA = "da → h", "u → da"  # carries


class Dita:
    """Touches the keys of the sheet that lies on the surface."""

    PAUSA = 0.3  # seconds between two touches: two that come together are one

    def __init__(self, giocatore):
        self._albero, self._tavoletta = giocatore.albero, giocatore.tavoletta

    def tocca(self, segno, volte=1):
        """Touches the key that bears these words."""
        for _ in range(volte):
            time.sleep(self.PAUSA)
            self._tavoletta.fai(f"segno {segno}")
            self._tavoletta.aspetta("mandato")

    def componi(self, numero):
        """Empties the box, writes a number digit by digit, confirms it."""
        self.tocca(CESTINO)
        self._aspetta_scritto("")
        for i, cifra in enumerate(str(numero), 1):
            self.tocca(cifra)
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
