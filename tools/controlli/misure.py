"""What the house measures: the figures by which one sees where it goes."""

import re
import statistics

from . import sorgenti, struttura, testo

_CLASSE = re.compile(r"\bclass\s+(\w+)(?:\s+final)?\s*:\s*(?:public|protected|private)\s+"
                     r"(?:virtual\s+)?([\w:]+)(?:<[^{]*>)?[^{;]*\{")
_FUNZIONE = re.compile(r"\)\s*(?:const|noexcept|override|final|->\s*[\w:<>&*\s]+|\s)*"
                       r"(?::\s*[\w:]+[^;{}]*(?:\{[^{};]*\}[^;{}]*)*)?\{")


def _decimo(valori, parte):
    valori = sorted(valori)
    return valori[min(len(valori) - 1, int(len(valori) * parte))] if valori else 0


def funzioni(file):
    """(line, length in lines) of the bodies of a file's functions; a lambda within counts as its
    function's."""
    codice = sorgenti.codice(file)
    fine = 0
    for trovato in _FUNZIONE.finditer(codice):
        apre = trovato.end() - 1
        testa = codice[codice.rfind("\n", 0, trovato.start()) + 1:apre]
        if apre < fine or re.search(r"\b(if|for|while|switch|catch)\b", testa):
            continue
        profondita, i = 0, apre
        while i < len(codice):
            profondita += {"{": 1, "}": -1}.get(codice[i], 0)
            i += 1
            if profondita == 0:
                break
        fine = i
        yield sorgenti.riga(codice, apre), codice.count("\n", apre, i) + 1


def classi():
    """(class, the one that it stands on, its body) for the product, each that stands on another."""
    for file in sorgenti.prodotto():
        codice = sorgenti.codice(file)
        for trovata in _CLASSE.finditer(codice):
            profondita, fine = 1, trovata.end()
            while fine < len(codice) and profondita > 0:
                profondita += {"{": 1, "}": -1}.get(codice[fine], 0)
                fine += 1
            yield trovata[1], trovata[2].rpartition("::")[2], codice[trovata.end():fine - 1]


def gusci():
    """The forms, and what they stand on, that only name their base: nothing in them but how they are made."""
    sopra = {nome: base for nome, base, _ in classi()}
    for nome, _, corpo in classi():
        fatta = rf"(?:explicit\s+|virtual\s+)?~?{nome}\s*\([^;{{]*(?:;|\{{[^{{}}]*\}})"
        resto = re.sub(rf"\b(?:public|protected|private)\s*:|Q_OBJECT|using [^;]*;|friend [^;]*;|{fatta}", "", corpo)
        base = nome
        while base in sopra:
            base = sopra[base]
        if base == "Form" and not resto.strip(" \n;"):
            yield nome


def profondita_delle_forme():
    """Form -> how many classes lie between it and the ground's Form, itself included."""
    sopra = {nome: base for nome, base, _ in classi()}

    def altezza(nome):
        if nome == "Form":
            return 0
        sotto = altezza(sopra[nome]) if nome in sopra else None
        return None if sotto is None else sotto + 1

    # Whatever makes a form is the base of nothing else.
    forme = {n for n in sopra if re.match(r"Forma?[A-Z]\w*$|frm[A-Z]\w*$", n)}
    forme -= {*sopra.values()}
    return {n: a for n in sorted(forme) if (a := altezza(n))}


def righe():
    """The figures, a line each."""
    prodotto = sorgenti.prodotto()
    lunghezze = {f: sorgenti.testo(f).count("\n") for f in prodotto}
    corpi = [(n, f"{f}:{riga}") for f in prodotto for riga, n in funzioni(f)]
    quanti = [n for n, _ in corpi]
    esercizi = [f for f in prodotto if f.startswith("exercises/") and f.endswith(".h")]
    liberi = [f for f in esercizi
              if not any(i.startswith("platform/forms") for i in _raggiunti(f))]
    profondita = {n: a for n, a in profondita_delle_forme().items()
                  if any(f.startswith("exercises/") and f"class {n}" in sorgenti.codice(f)
                         for f in esercizi)}
    nodi = struttura.nodi()
    yield f"product: {len(prodotto)} files, {sum(lunghezze.values())} lines; a file median " \
          f"{statistics.median(lunghezze.values()):.0f}, p90 {_decimo(lunghezze.values(), 0.9)}, " \
          f"longest {max(lunghezze.values())} ({max(lunghezze, key=lunghezze.get)})"
    yield f"functions: {len(quanti)}, median {statistics.median(quanti):.0f}, " \
          f"p90 {_decimo(quanti, 0.9)}, above 40 lines: " \
          f"{', '.join(f'{p} {n}' for n, p in sorted(corpi, reverse=True) if n > 40) or 'none'}"
    if profondita:
        yield f"classes of exercise forms: {len(profondita)}, classes below Form median " \
              f"{statistics.median(profondita.values()):.0f}, most {max(profondita.values())} " \
              f"({max(profondita, key=profondita.get)})"
    yield f"classes that only name their base: {', '.join(gusci()) or 'none'}"
    yield f"headers of exercises/ that reach no form: {len(liberi)} of {len(esercizi)}"
    yield f"near-copies above {testo.RIGHE_DI_UNA_COPIA} lines: {len(list(testo.copie()))}"
    yield f"rings of headers: {len(list(struttura.cicli_di_intestazioni()))}"
    yield f"knots: {len(nodi)}, of {', '.join(str(len(n)) for n in nodi) or 'no'} files"


def _raggiunti(file, visti=None):
    visti = set() if visti is None else visti
    for incluso in sorgenti.inclusi(file):
        if incluso not in visti:
            visti.add(incluso)
            _raggiunti(incluso, visti)
    return visti
