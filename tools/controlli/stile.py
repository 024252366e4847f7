"""Rules of docs/style.md that no other program holds."""

import re

from . import misure, sorgenti


def tre_sbarre():
    """Comments of a second kind."""
    for file in sorgenti.cpp():
        testo = sorgenti.testo(file)
        for inizio, commento in sorgenti.commenti(file):
            if commento.startswith("///"):
                riga = sorgenti.riga(testo, inizio)
                yield f"{file}:{riga}: a comment begins with //, not with ///"


_CONDIZIONE = re.compile(r"^[ \t]*#[^\n]*|\b(?:if|for|while)\b(?:\s+constexpr)?\s*(?=\()", re.M)
_CORPO_SOTTO = re.compile(r"[ \t]*\n\s*(?![\s{])")
_ALTRIMENTI = re.compile(r"(?<!#)\belse\b(?P<corpo>[ \t]*\n\s*(?![\s{]))")


def _fine_della_condizione(codice, apre):
    """Where the text goes on after a bracket and what it encloses."""
    profondita = 0
    for posto in range(apre, len(codice)):
        profondita += {"(": 1, ")": -1}.get(codice[posto], 0)
        if profondita == 0:
            return posto + 1
    return len(codice)


def corpi_senza_graffe():
    """Bodies that stand on a line of their own, and not in braces."""
    for file in sorgenti.cpp():
        codice = sorgenti.codice(file)
        posti = [trovato.end("corpo") for trovato in _ALTRIMENTI.finditer(codice)]
        for trovata in _CONDIZIONE.finditer(codice):
            if not trovata[0].lstrip().startswith("#"):
                corpo = _CORPO_SOTTO.match(codice, _fine_della_condizione(codice, trovata.end()))
                posti += [corpo.end()] if corpo else []
        for posto in sorted(posti):
            riga = sorgenti.riga(codice, posto)
            yield f"{file}:{riga}: a body on a line of its own stands in braces"


_GRAFIA = re.compile(r"\b\w*(?:colour|grey)\w*", re.I)


def nomi_britannici():
    """Names in British spelling."""
    for file in sorgenti.cpp():
        codice = sorgenti.codice(file)
        for nome in _GRAFIA.finditer(codice):
            riga = sorgenti.riga(codice, nome.start())
            yield f"{file}:{riga}: {nome[0]}: names say color and gray"


_CARICAMENTO = re.compile(r"^void (\w+)::onLoad\(\) \{\n(.*?)^\}", re.M | re.S)


def caricamenti_senza_la_base():
    """Forms whose Load leaves out what that of their base does."""
    sopra = {nome: base for nome, base, _ in misure.classi()}
    for file in sorgenti.prodotto():
        codice = sorgenti.codice(file)
        for trovato in _CARICAMENTO.finditer(codice):
            if sopra.get(trovato[1]) != "Form" and not re.search(r"\b\w+::onLoad\(\);", trovato[2]):
                riga = sorgenti.riga(codice, trovato.start())
                yield f"{file}:{riga}: the Load of {trovato[1]} leaves out that of its base"
