"""The table at the end of the measurements: each figure, its limit and the verdict."""

from typing import NamedTuple, Optional

from figura import cifre

MANTENUTA, CORTA, FALLITA = "kept", "SHORT", "FAILED"
_TESTA = ("figure", "value", "limit", "verdict")


class Esito(NamedTuple):
    """What became of a part: its figures, and why it failed where it did."""

    nome: str
    figure: list
    guasto: Optional[str]


def _riga(figura, nome):
    return (f"  {nome}", f"{cifre(figura.valore)} {figura.unita}".rstrip(),
            f"{figura.come} {figura.limite:.4g}", MANTENUTA if figura.mantenuta() else CORTA)


def _di_un_nome(figure):
    """The rows for the figures of one name: the worst, and every other that falls short."""
    prima, *altre = sorted(figure, reverse=True,
                           key=lambda f: (not f.mantenuta(), f.valore != f.valore, f.valore))
    if not altre:
        yield _riga(prima, f"{prima.nome}, {prima.di}" if prima.di else prima.nome)
        return
    yield _riga(prima, f"{prima.nome}, worst of {len(figure)}: {prima.di}")
    for figura in altre:
        if not figura.mantenuta():
            yield _riga(figura, f"{figura.nome}, {figura.di}")


def _di_una_parte(esito):
    yield (esito.nome, "", "", "")
    for nome in dict.fromkeys(f.nome for f in esito.figure):
        yield from _di_un_nome([f for f in esito.figure if f.nome == nome])
    if esito.guasto:
        yield (f"  {esito.guasto}", "", "", FALLITA)


def righe(esiti):
    """The lines of the table."""
    tutte = [_TESTA, *(riga for esito in esiti for riga in _di_una_parte(esito))]
    larghe = [max(len(riga[i]) for riga in tutte) for i in range(len(_TESTA))]
    return ["  ".join(campo.ljust(larga) for campo, larga in zip(riga, larghe)).rstrip()
            for riga in tutte]


def bilancio(esiti):
    """Whether all is kept, and the sentence that says so."""
    figure = [figura for esito in esiti for figura in esito.figure]
    corte = sum(not figura.mantenuta() for figura in figure)
    guasti = sum(esito.guasto is not None for esito in esiti)
    if not corte and not guasti:
        return True, f"all {len(figure)} figures kept"
    detti = [f"{corte} of {len(figure)} figures fall short"] if corte else []
    detti += [f"{guasti} of {len(esiti)} parts failed"] if guasti else []
    return False, ", ".join(detti)
