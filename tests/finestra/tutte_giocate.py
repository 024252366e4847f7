#!/usr/bin/python3
"""Sees that every exercise form is played in a real window.

    tutte_giocate.py <the monkey, which knows the forms> <game> ...

The games are those that are run as tests. Ends with 0 when they are all that there are, and between
them play each exercise form of the program, once.
"""

import collections
import os
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "prova"))
from partite import PARTITE  # noqa: E402


def main():
    if len(sys.argv) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    elenco = subprocess.run([sys.argv[1], "--elenco"], capture_output=True, text=True, check=True,
                            env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    esercizi = elenco.stdout.split()
    giocate = collections.Counter(f for partita in PARTITE.values() for f in partita.forme)
    guai = [f"{forma} is played {giocate[forma]} times" for forma in {*esercizi, *giocate}
            if giocate[forma] != 1 or forma not in esercizi]
    guai += [f"{nome} is no test, or no game" for nome in {*sys.argv[2:]} ^ {*PARTITE}]
    for guaio in sorted(guai):
        print(guaio, file=sys.stderr)
    print(f"{len(esercizi)} exercise forms, {len(PARTITE)} games")
    return 1 if guai or not esercizi else 0


if __name__ == "__main__":
    sys.exit(main())
