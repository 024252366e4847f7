#!/usr/bin/python3
"""Makes a fresh Debian that several trials take copies of, each its own (see Debian.crea).

    debian.py <folder>

The folder must not be there yet. Of the packages that building and starting take it has the files, so that
nobody waits for them; nothing of them is installed. At the end there is a file beside it, <folder>.fatta.
Ends with 77 where no fresh Debian can be made.
"""

import os
import signal
import sys

from giocatore import Errore
from installazione import Debian, SenzaDebian

NON_QUI = 77  # the exit status that says so
PACCHETTI = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "pacchetti")


def di_chi_comincia():
    """The packages that the first ./run installs."""
    with open(PACCHETTI, encoding="utf-8") as file:
        righe = [riga.split() for riga in file if riga.strip() and not riga.startswith("#")]
    return sorted({nome for gruppo, nome in righe if gruppo in ("build", "start")})


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    cartella = os.path.abspath(sys.argv[1])
    os.makedirs(cartella, mode=0o755)
    try:
        albero = Debian(cartella)
        albero.crea()
        albero.scarica(*di_chi_comincia())
    except SenzaDebian as perche:
        print(f"There is no fresh Debian to be had here: {perche}", file=sys.stderr)
        return NON_QUI
    except Errore as errore:
        print(f"Failed: {errore}", file=sys.stderr)
        return 1
    with open(cartella + ".fatta", "w", encoding="ascii"):
        pass
    return 0


if __name__ == "__main__":
    sys.exit(main())
