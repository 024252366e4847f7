#!/usr/bin/python3
"""Sees that every exercise form is played in a real window.

    tutte_giocate.py <header with the names of the forms> <game> ...

The games are those that are run as tests. Ends with 0 when they are all that there are, and between
them play each exercise form that the header names, once.
"""

import collections
import pathlib
import re
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "prova"))
from partite import PARTITE  # noqa: E402

ESERCIZIO = r'"(Form(?:Numeri|Barre|LU|HLU|Abaco|Tabella)\w*)"'


def main():
    if len(sys.argv) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    esercizi = re.findall(ESERCIZIO, pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
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
