"""The exercises that can be played, and which forms are played by each.

    partite.py [--a-tocchi]    their names: of those without the touch surface, or of those with it
"""

import sys
from typing import Callable, NamedTuple

import partite_abaco as abaco
import partite_barre as barre
import partite_blocchi as blocchi
import partite_numeri as numeri
import partite_tabella as tabella


class Partita(NamedTuple):
    """gioca: plays from the main menu on, given a Giocatore. forme: every form that it plays.

    caso: one whole case on each of them, which all hands can play (see senza_mouse.py).
    a_tocchi: it wants a stand-in for the touch surface. col_mouse: gioca wants a mouse.
    """

    gioca: Callable
    caso: Callable
    forme: frozenset
    a_tocchi: bool
    col_mouse: bool


def _partita(gioca, *forme, caso=None, a_tocchi=False, col_mouse=False):
    return gioca.__name__, Partita(gioca, caso or gioca, frozenset(forme), a_tocchi, col_mouse)


PARTITE = dict((
    _partita(barre.barre, "FormBarre10"),
    _partita(barre.barre_scritte, "FormBarre10Tastiera", "FormBarre20"),
    _partita(barre.barre_scansione, "FormBarre10Scansione", "FormBarre20Scansione"),
    _partita(barre.barre_tocco, "FormBarre10HK", "FormBarre20HK", a_tocchi=True),
    _partita(numeri.numeri, "FormNumeriTotale", "FormNumeriAddendo"),
    _partita(numeri.scansione, "FormNumeriTotaleScansione", caso=numeri.scansione_breve),
    _partita(numeri.addendo_scansione, "FormNumeriAddendoScansione"),
    _partita(numeri.tocco, "FormNumeriTotaleHK", "FormNumeriAddendoHK", a_tocchi=True),
    _partita(blocchi.blocchi, "FormLU"),
    _partita(blocchi.centinaia, "FormHLU"),
    _partita(blocchi.blocchi_scansione, "FormLUScansione"),
    _partita(blocchi.centinaia_scansione, "FormHLUScansione"),
    _partita(blocchi.blocchi_tocco, "FormLUHK", a_tocchi=True),
    _partita(blocchi.centinaia_tocco, "FormHLUHK", a_tocchi=True),
    _partita(abaco.abaco, "FormAbaco", caso=abaco.abaco_senza_mouse, col_mouse=True),
    _partita(abaco.abaco_scansione, "FormAbacoScansione"),
    _partita(abaco.abaco_tocco, "FormAbacoHK", a_tocchi=True),
    _partita(tabella.tabella, "FormTabella"),
))

if __name__ == "__main__":
    print("\n".join(nome for nome, partita in PARTITE.items()
                    if partita.a_tocchi == ("--a-tocchi" in sys.argv)))
