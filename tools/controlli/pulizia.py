"""clang-tidy over the program's files, and over what stands beside it where that has changed. The files of
the program, and the tests of a folder, are read many at a time, since most of what one takes are the headers
that all of them include."""

import concurrent.futures
import math
import os
import re
import shutil
import subprocess
import tempfile

from . import sorgenti

PROGRAMMA = "clang-tidy-16"
# Sources that are read together: more of them would leave a core without work at the end.
_INSIEME = 45
_LIBRERIE = ("Qt6DBus", "Qt6Network", "Qt6Widgets")
# What tests, tools, benches and fuzz targets need beside these.
_LIBRERIE_ACCANTO = ("Qt6Svg", "Qt6Test")
_ACCANTO = ("bench/", "fuzz/", "swf/", "tests/", "tools/")


def cambiati():
    """The files that differ from those of main, or from the last commit where this is main: of the program
    and of what stands beside it."""
    base = subprocess.run(["git", "merge-base", "HEAD", "main"], capture_output=True, text=True,
                          check=False).stdout.strip() or "HEAD"
    diversi = subprocess.run(["git", "diff", "--name-only", "--diff-filter=d", base],
                             capture_output=True, text=True, check=False).stdout.splitlines()
    nuovi = subprocess.run(["git", "ls-files", "--others", "--exclude-standard"],
                           capture_output=True, text=True, check=False).stdout.splitlines()
    accanto = {f for f in sorgenti.cpp() if f.startswith(_ACCANTO) and "/windows/" not in f}
    return sorted({*diversi, *nuovi} & {*da_leggere(), *accanto})


def da_leggere():
    """The program's files that can be read here: those of another system include headers of its own."""
    return tuple(f for f in sorgenti.prodotto() if "/windows/" not in f)


# What stands at the beginning of a line is seen in the whole file: the names by which functions, types
# and values are defined there, but those of members.
_NOME_PROPRIO = re.compile(r"^(?=\w)(?!using namespace|namespace|(?:class|struct) \w+;)[^\n(={;]*?(?<!::)\b(?P<nome>[A-Za-z_]\w*)"
                           r"(?:\[[^\]]*\])?(?: final)?\s*(?:[(={;]|:(?!:))", re.M)


def nomi_propri(file):
    """The names that a source defines beside the members of classes."""
    return {trovato["nome"] for trovato in _NOME_PROPRIO.finditer(sorgenti.codice(file))}


def _insieme(percorso):
    """What a file may be read together with: the program, for tests their folder, else nothing."""
    if sorgenti.stanza(percorso):
        return ""
    return percorso.rpartition("/")[0] if percorso.endswith("_test.cpp") else percorso


def _dal_basso(percorso):
    """The order in which files are read together: a room before those above it, of which it then sees no
    name, and its headers first."""
    stanza = sorgenti.stanza(percorso)
    return sorgenti.piano(stanza) if stanza else 0, percorso.endswith(".cpp"), percorso


def _spartiti(file):
    """Files that may be read together, in groups of one size. Two of a room go into two of them where both
    define a name; a name of two rooms is to each its own. Headers go into the first."""
    fonti = sorted(f for f in file if f.endswith(".cpp"))
    posti = [([], set()) for _ in range(max(1, math.ceil(len(fonti) / _INSIEME)))]
    for percorso in fonti:
        # Each file of tests has a namespace of its own.
        nomi = {(sorgenti.stanza(percorso), nome)
                for nome in nomi_propri(percorso) if not percorso.endswith("_test.cpp")}
        liberi = [posto for posto in posti if not nomi & posto[1]]
        if not liberi:
            liberi.append(([], set()))
            posti += liberi
        gruppo, visti = min(liberi, key=lambda posto: len(posto[0]))
        gruppo.append(percorso)
        visti |= nomi
    posti[0][0].extend(f for f in file if not f.endswith(".cpp"))
    return [sorted(gruppo, key=_dal_basso) for gruppo, _ in posti]


def gruppi(file):
    """Lists of files to read together."""
    insiemi = {}
    for percorso in sorted(file):
        insiemi.setdefault(_insieme(percorso), []).append(percorso)
    return [gruppo for insieme in insiemi.values() for gruppo in _spartiti(insieme)]


def _opzioni(file, cartella):
    """How the compiler is called for those files; None where a library's headers are missing. cartella: for
    what the build would make of them."""
    accanto = [f for f in file if sorgenti.stanza(f) is None]
    librerie = (*_LIBRERIE, *_LIBRERIE_ACCANTO) if accanto else _LIBRERIE
    esito = subprocess.run(["pkg-config", "--cflags", *librerie], capture_output=True, text=True,
                           check=False)
    if esito.returncode:
        return None
    opzioni = ["-std=c++20", "-fPIC", f"-I{os.getcwd()}",
               *(re.sub("^-I", "-isystem", opzione) for opzione in esito.stdout.split())]
    if accanto:
        # What a folder of tests does in a way of each system lies below it.
        sistemi = {f"{os.path.dirname(os.path.abspath(f))}/linux" for f in accanto}
        opzioni += [f"-I{os.path.abspath('tests')}", f"-I{cartella}", *(f"-I{s}" for s in sorted(sistemi)),
                    *(f'-D{nome}=""' for nome in _nomi_del_build())]
    for moc in {m for f in accanto for m in re.findall(r'#include "(\w+\.moc)"', sorgenti.testo(f))}:
        with open(os.path.join(cartella, moc), "w", encoding="utf-8"):
            pass
    return opzioni


def _nomi_del_build():
    """The names by which the build tells tests and tools where things lie."""
    return sorted({nome for f in sorgenti.tutti()
                   if f.startswith(_ACCANTO) and f.endswith("CMakeLists.txt")
                   for nome in re.findall(r'\b([A-Z][A-Z_]+)="', sorgenti.testo(f))})


_DETTO = re.compile(r"^(?P<file>/[^:\n]+):(?P<riga>\d+):\d+: (?:error|warning): (?P<che>.*)$", re.M)


def _letto(gruppo, filtro, opzioni, cartella):
    """What clang-tidy says of files that are read together, and of what else the filter names of all that
    they include: (file, line, words)."""
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=cartella) as insieme:
        insieme.write("".join(f'#include "{f}"\n' for f in gruppo))
        insieme.flush()
        esito = subprocess.run(
            [PROGRAMMA, "--quiet", "--config-file=.clang-tidy", f"--header-filter={filtro}",
             insieme.name, "--", *opzioni], capture_output=True, text=True, check=False)
    detti = {(os.path.relpath(d["file"]), int(d["riga"]), d["che"])
             for d in _DETTO.finditer(esito.stdout)}
    if esito.returncode and not detti:
        detti.add((gruppo[0], 1, f"{PROGRAMMA} failed: {esito.stderr.strip()[-300:]}"))
    return detti


def _letti(gruppo, filtro, opzioni, cartella):
    """The same; where names of two files come in each other's way after all, each of these by itself."""
    detti = _letto(gruppo, filtro, opzioni, cartella)
    rotti = {f for f, _, che in detti if che.endswith("[clang-diagnostic-error]")}
    if not rotti or len(gruppo) == 1:
        return detti
    # A name may come in the way of what a file includes, too: then nobody knows whose it is.
    soli = rotti & set(gruppo) or set(gruppo)
    altri = [f for f in gruppo if f not in soli]
    return set().union(*(_letti(g, filtro, opzioni, cartella)
                         for g in (altri, *([f] for f in sorted(soli))) if g))


def guasti(file):
    """What clang-tidy finds in those files."""
    if not file:
        return
    if not shutil.which(PROGRAMMA):
        yield f"{PROGRAMMA} is missing: tools/installa check"
        return
    filtro = f"^({'|'.join(re.escape(os.path.abspath(f)) for f in file)})$"
    detti = set()
    with tempfile.TemporaryDirectory() as cartella, \
            concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0))) as insieme:
        opzioni = _opzioni(file, cartella)
        if opzioni is None:
            yield f"{PROGRAMMA} needs the headers of Qt: tools/installa build"
            return
        for trovati in insieme.map(lambda g: _letti(g, filtro, opzioni, cartella), gruppi(file)):
            detti |= trovati
    for percorso, riga, che in sorted(detti):
        yield f"{percorso}:{riga}: {che}"
