"""Rules of the text: length, repetition, words, form."""

import re
import shutil
import subprocess
from collections import defaultdict

from . import sorgenti

RIGHE_DEL_PRODOTTO = 350
RIGHE_DI_UN_FILE = 400  # of those beside it
RIGHE_DI_UNA_COPIA = 10
LETTERE_DI_UN_TITOLO = 72


def file_lunghi():
    """Files longer than a head holds."""
    for file in sorgenti.cpp():
        righe = sorgenti.testo(file).count("\n")
        limite = RIGHE_DEL_PRODOTTO if sorgenti.stanza(file) else RIGHE_DI_UN_FILE
        if righe > limite:
            yield f"{file}: {righe} lines, {limite} at most"


_NOME = re.compile(r"[A-Za-z_]\w*")
_NUMERO = re.compile(r"\b\d[\w.']*")
_PAROLE = frozenset("""if else for while do switch case default return class struct enum public
private protected const constexpr static void bool auto int double virtual override final template
typename using namespace new delete this true false nullptr operator break continue""".split())


def _forma(riga):
    """A line with other names and numbers has the same shape."""
    return _NUMERO.sub("0", _NOME.sub(lambda n: n[0] if n[0] in _PAROLE else "x", riga))


_DATI = re.compile(r"to_array<(?:Row|Livello)>\(\{.*?\}\);|\{\s*\.(?:name|famiglie) =.*?\};", re.S)


_SENZA_PESO = ("#", "namespace", "using ", "public:", "private:", "private Q_SLOTS:", "Q_OBJECT")


def _righe_che_contano(file):
    """(line number, shape) of the lines of a file in which something is said: rows of designs, of levels
    and of plain numbers, and what menus are made of, are data, and includes, names that are taken from
    elsewhere, access words, what opens a class of tests, and lone brackets are alike everywhere."""
    codice = _DATI.sub(lambda d: "\n" * d[0].count("\n"), sorgenti.codice(file))
    for numero, riga in enumerate(codice.splitlines(), 1):
        riga = re.sub(r"\s+", " ", riga.strip())
        if len(riga) < 4 or riga.startswith(_SENZA_PESO) or not _NOME.search(riga):
            continue
        yield numero, _forma(riga)


def copie():
    """Pairs of places of which more lines than allowed in a row have one shape, in the product and beside
    it."""
    passo = RIGHE_DI_UNA_COPIA + 1
    righe = {f: list(_righe_che_contano(f)) for f in sorgenti.cpp()}
    posti = defaultdict(list)
    for file, elenco in righe.items():
        for i in range(len(elenco) - passo + 1):
            finestra = tuple(forma for _, forma in elenco[i:i + passo])
            # A run of declarations of one kind, or of cases, has one shape by its nature.
            if len(set(finestra)) > 4:
                posti[finestra].append((file, i))
    viste = set()
    for luoghi in posti.values():
        for a in luoghi:
            for b in luoghi:
                if a < b and (a[0], b[0]) not in viste and (a[0] != b[0] or b[1] - a[1] >= passo):
                    viste.add((a[0], b[0]))
                    prima, seconda = (righe[f][i][0] for f, i in (a, b))
                    yield f"{a[0]}:{prima} and {b[0]}:{seconda}: more than " \
                          f"{RIGHE_DI_UNA_COPIA} lines alike"


def titoli(da):
    """Titles of commits that no list shows whole. da: the last commit that need not obey; where the
    history does not reach it, the newest commit alone is looked at."""
    noto = subprocess.run(["git", "cat-file", "-e", f"{da}^{{commit}}"], capture_output=True,
                          check=False).returncode == 0
    elenco = subprocess.run(["git", "log", "--no-merges", "--format=%h %s",
                             *([f"{da}..HEAD"] if noto else ["-1"])],
                            capture_output=True, text=True, check=True)
    for riga in elenco.stdout.splitlines():
        sigla, _, titolo = riga.partition(" ")
        if len(titolo) > LETTERE_DI_UN_TITOLO:
            yield f"commit {sigla}: a title of {len(titolo)} letters, " \
                  f"{LETTERE_DI_UN_TITOLO} at most: {titolo}"


# What is left open belongs into the list of open things, not into the code; paths of somebody's
# machine help nobody else. The words are put together here so that this file does not hold them.
_PAROLE_VIETATE = re.compile("|".join([
    r"\bTO" r"DO\b", r"\bFIX" r"ME\b", r"\bXX" r"X\b", r"\bHA" r"CK\b",
    r"(?<![\w.~$-])/(?:home|roo" r"t|Users)/\w",
    r"^<{7} ", r"^>{7} "]), re.M)


def parole():
    """Words that must not appear."""
    for file in sorgenti.tutti():
        testo = sorgenti.testo(file)
        for trovato in _PAROLE_VIETATE.finditer(testo):
            riga = sorgenti.riga(testo, trovato.start())
            yield f"{file}:{riga}: {trovato.group().strip()}"


# A variable that the compiler knows the value of; functions and templates of constants are left alone.
_COSTANTE = re.compile(r"\bconstexpr\s[\w:<>,*&\s]*?\b(?P<nome>[A-Za-z_]\w*)(?:\[[^\]]*\])?\s*(?:=(?!=)|\{)")
_DI_UN_MODELLO = re.compile(r"template\s*<[^;{}]*>\s*(?:(?:inline|static)\s+)*\Z")


def costanti():
    """Constants whose name does not begin with k."""
    for file in sorgenti.cpp():
        codice = sorgenti.codice(file)
        for trovata in _COSTANTE.finditer(codice):
            nome = trovata["nome"]
            if (re.match(r"k[A-Z]", nome) or nome == "const"
                    or _DI_UN_MODELLO.search(codice[:trovata.start()][-200:])):
                continue
            riga = sorgenti.riga(codice, trovata.start("nome"))
            yield f"{file}:{riga}: {nome}"


# A colour by its numbers, and where these may stand: in one table for the ground, in one for the rooms above.
_COLORE = re.compile(r"\b(?:Q?Rgb|QColor|qRgba?)\b(?:\s+\w+)?\s*[({]\s*(?:\d|0x)|\"#[0-9A-Fa-f]{6}\"")
_TAVOLE_DEI_COLORI = ("app/shared/colori.h", "platform/forms/colors.h")
_NERO_E_BIANCO = "platform/forms/design.h"  # where the type is


def colori():
    """Colours that have no name, or have it elsewhere than among all others. Those of movies are the
    movies' own."""
    for file in sorgenti.prodotto():
        if file in (*_TAVOLE_DEI_COLORI, _NERO_E_BIANCO) or file.startswith("platform/flash/"):
            continue
        righe = sorgenti.testo(file).splitlines()
        for numero, riga in enumerate(sorgenti.codice(file).splitlines(), 1):
            if _COLORE.search(riga) or _COLORE.search(righe[numero - 1].partition("//")[0]):
                yield f"{file}:{numero}: a colour by its numbers; give it a name in " \
                      f"{_TAVOLE_DEI_COLORI[file.startswith('platform/')]}"


def formato():
    """Files that clang-format would lay out otherwise."""
    if not shutil.which("clang-format-16"):
        yield "clang-format-16 is missing: tools/installa check"
        return
    esito = subprocess.run(["clang-format-16", "--dry-run", *sorgenti.cpp()],
                           capture_output=True, text=True, check=False)
    if esito.returncode < 0:
        yield f"clang-format-16 was ended by signal {-esito.returncode}"
    for file in sorted(set(re.findall(r"^([^\s:]+):\d+:\d+: (?:warning|error)", esito.stderr,
                                      re.M))):
        yield f"{file}: not as clang-format-16 lays it out (clang-format-16 -i {file})"
    if esito.returncode > 0 and not esito.stderr:
        yield "clang-format-16 failed without a word"
