#!/usr/bin/python3
"""Makes a fresh Debian that several trials take copies of, each its own (see Debian.crea).

    debian.py <folder>

The folder must not be there yet. Of the packages that building and starting take it has the files, so that
nobody waits for them; nothing of them is installed. At the end there is a file beside it, <folder>.fatta.
Ends with 77 where no fresh Debian can be made.
"""

import os
import sys

from installazione import Debian, esito

PACCHETTI = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "pacchetti")


def di_chi_comincia():
    """The packages that the first ./run installs."""
    with open(PACCHETTI, encoding="utf-8") as file:
        righe = [riga.split() for riga in file if riga.strip() and not riga.startswith("#")]
    return sorted({nome for gruppo, nome in righe if gruppo in ("build", "start")})


def main():
    cartella = os.path.abspath(sys.argv[1])

    def lavoro():
        os.makedirs(cartella)
        albero = Debian(cartella)
        albero.crea()
        albero.scarica(*di_chi_comincia())
        with open(cartella + ".fatta", "w", encoding="ascii"):
            pass
    return esito(lavoro)


if __name__ == "__main__":
    sys.exit(main())
