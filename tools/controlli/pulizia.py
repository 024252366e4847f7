"""clang-tidy over the program and what stands beside it: tests, tools, benches, fuzz targets. Files are read
many at a time, since most of what one takes are the headers that all of them include."""

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
    return sorted({*diversi, *nuovi} & {*da_leggere()})


def da_leggere():
    """The files that can be read here: those of another system include headers of its own."""
    return tuple(f for f in sorgenti.cpp()
                 if (sorgenti.stanza(f) or f.startswith(_ACCANTO)) and "/windows/" not in f)


# What stands at the beginning of a line is seen in the whole file: the names by which functions, types
# and values are defined there, but those of members.
_NOME_PROPRIO = re.compile(r"^(?=\w)(?!using namespace|namespace|(?:class|struct) \w+;)[^\n(={;]*?(?<!::)\b(?P<nome>[A-Za-z_]\w*)"
                           r"(?:\[[^\]]*\])?(?: final)?\s*(?:[(={;]|:(?!:))", re.M)


def nomi_propri(file):
    """The names that a source defines beside the members of classes."""
    return {trovato["nome"] for trovato in _NOME_PROPRIO.finditer(sorgenti.codice(file))}


def _insieme(percorso):
    """What a file may be read together with: the program, tests, or what else stands beside it."""
    return sorgenti.stanza(percorso) is None, _e_prova(percorso)


def _e_prova(percorso):
    return sorgenti.stanza(percorso) is None and percorso.endswith("_test.cpp")


def _dal_basso(percorso):
    """The order in which files are read together: a room before those above it, of which it then sees no
    name, and its headers first."""
    stanza = sorgenti.stanza(percorso)
    return sorgenti.piano(stanza) if stanza else 0, percorso.endswith(".cpp"), percorso


def _cartella(percorso):
    return percorso.rpartition("/")[0]


def _nomi(percorso):
    """What a source has for itself: name and owner. Where another owner has it too, they are read apart."""
    if not _e_prova(percorso):
        # Each program has a main, a name of two rooms is to each its own.
        stanza = sorgenti.stanza(percorso)
        return {((stanza, nome), percorso) for nome in nomi_propri(percorso) - ({"main"} if not stanza else set())}
    # A file of tests has a namespace of its own, and shares what the headers beside it define.
    cartella = _cartella(percorso)
    return {(percorso.rpartition("/")[2], percorso),
            *((nome, cartella) for f in sorgenti.cpp() if f.endswith(".h") and _cartella(f) == cartella
              for nome in nomi_propri(f))}


def _spartiti(file):
    """Files that may be read together, in groups of one size: those of a folder, which include much alike, in
    the same. A header goes where a source of its folder is, else into the first."""
    fonti = sorted(f for f in file if f.endswith(".cpp"))
    quanti = max(1, math.ceil(len(fonti) / _INSIEME))
    posti = [([], {}) for _ in range(quanti)]
    for percorso in fonti:
        nomi = _nomi(percorso)
        liberi = [posto for posto in posti if all(posto[1].get(nome, di) == di for nome, di in nomi)]
        if not liberi:
            liberi.append(([], {}))
            posti += liberi
        gruppo, visti = next((posto for posto in liberi if len(posto[0]) < len(fonti) / quanti), liberi[-1])
        gruppo.append(percorso)
        visti.update(nomi)
    for percorso in (f for f in file if not f.endswith(".cpp")):
        vicini = (g for g, _ in posti if _cartella(percorso) in map(_cartella, g))
        next(vicini, posti[0][0]).append(percorso)
    return [sorted(gruppo, key=_dal_basso) for gruppo, _ in posti if gruppo]


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
    opzioni = ["-std=c++20", "-fPIC", "-DQT_NO_KEYWORDS", f"-I{os.getcwd()}",
               *(re.sub("^-I", "-isystem", opzione) for opzione in esito.stdout.split())]
    if accanto:
        # What a folder of tests does in a way of each system lies below it; what several use, above it.
        qui = {_cartella(f) for f in accanto}
        sopra = {_cartella(c) for c in qui} - {""}
        opzioni += [f"-I{os.path.abspath('tests')}", f"-I{cartella}",
                    *(f"-I{os.path.abspath(c)}" for c in sorted({*sopra, *(f"{c}/linux" for c in qui)})),
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


def _incluso(numero, percorso):
    """The lines by which a file is read beside others: a function main, still called so, in a namespace of its
    own."""
    riga = f'#include "{percorso}"'
    if sorgenti.stanza(percorso) or "main" not in nomi_propri(percorso):
        return [riga]
    return [f"namespace programma{numero} {{ int main(); int main(int, char**); }}",
            f"#define main programma{numero}::main", riga, "#undef main"]


def _letto(gruppo, filtro, opzioni, cartella):
    """What clang-tidy says of files that are read together, and of what else the filter names of all that
    they include: (file, line, words)."""
    righe = [(riga, f) for numero, f in enumerate(gruppo) for riga in _incluso(numero, f)]
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=cartella) as insieme:
        insieme.writelines(f"{riga}\n" for riga, _ in righe)
        insieme.flush()
        esito = subprocess.run(
            [PROGRAMMA, "--quiet", "--config-file=.clang-tidy", f"--header-filter={filtro}",
             insieme.name, "--", *opzioni], capture_output=True, text=True, check=False)
        detti = {(righe[int(d["riga"]) - 1][1], 1, d["che"]) if os.path.samefile(d["file"], insieme.name)
                 else (os.path.relpath(d["file"]), int(d["riga"]), d["che"])
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
    if soli := rotti & set(gruppo):
        parti = [[f for f in gruppo if f not in soli], *([f] for f in sorted(soli))]
    else:
        # A name may come in the way of what a file includes, too: then nobody knows whose it is.
        parti = [gruppo[:len(gruppo) // 2], gruppo[len(gruppo) // 2:]]
    return set().union(*(_letti(parte, filtro, opzioni, cartella) for parte in parti if parte))


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
