"""Whether docs/house.md, and the picture in it, show the floors of the house as they are."""

import re

from . import sorgenti

_PAGINA = "docs/house.md"
_FIGURA = "docs/house.svg"

_RIGA = re.compile(r"^\| (?P<piano>\d) \| (?P<stanze>`[^|]*) \|", re.M)
_SCRITTA = re.compile(r'<text [^>]*font-size="(?P<lettere>\d+)"[^>]*>(?P<parola>[^<]*)</text>')
_NUMERO_DI_UN_PIANO, _NOME_DI_UNA_STANZA = "18", "17"  # their sizes in the picture


def _piani():
    """(floor, room) of every room that there is."""
    stanze = {sorgenti.stanza(file) for file in sorgenti.cpp()} - {None}
    return {(sorgenti.piano(stanza), stanza) for stanza in stanze}


def _della_pagina():
    """The same as the table says it. After `platform/forms` a plain `flash` is `platform/flash`."""
    for riga in _RIGA.finditer(sorgenti.testo(_PAGINA)):
        sopra = ""
        for nome in re.findall(r"`([^`]+)`", riga["stanze"]):
            if "/" not in nome:
                nome = sopra + nome
            sopra = re.match(r"(?:[^/]+/(?=.))?", nome)[0]
            yield int(riga["piano"]), nome.rstrip("/")


def _della_figura():
    """The same as the picture shows it, where a family bears the name of its folder alone."""
    piano = None
    for scritta in _SCRITTA.finditer(sorgenti.testo(_FIGURA)):
        if scritta["lettere"] == _NUMERO_DI_UN_PIANO:
            piano = int(scritta["parola"])
        elif scritta["lettere"] == _NOME_DI_UNA_STANZA:
            parola = scritta["parola"]
            famiglia = f"exercises/{parola}"
            yield piano, famiglia if (piano, famiglia) in _piani() else parola


def stanze_fuori_posto():
    """Rooms that page or picture do not show on their floor, and what they show that is no room there."""
    for dove, mostrate in ((_PAGINA, set(_della_pagina())), (_FIGURA, set(_della_figura()))):
        for piano, stanza in sorted(_piani() - mostrate):
            yield f"{dove}: {stanza} is not shown on floor {piano}"
        for piano, stanza in sorted(mostrate - _piani()):
            yield f"{dove}: {stanza} is shown on floor {piano}"
