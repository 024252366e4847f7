"""Takes the measurements: builds what they need, runs them one after the other, ends with a table.

    bench/misura                   all of them
    bench/misura avvio filmati     these
    bench/misura --breve           every figure, with fewer repetitions: about two minutes

Ends with 0 where every figure is kept, with 1 where one falls short or a part failed, with 2 where
there is no part of a name.
"""

import argparse
import contextlib
import os
import signal
import subprocess
import sys
import time
from typing import NamedTuple

import figura
import tabella

RADICE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
sys.path.insert(0, os.path.join(RADICE, "tools", "prova"))

from schermo import ErroreSchermo, Schermo  # noqa: E402

ALBERO = "dev"
SOMME = f"build/{ALBERO}/somme"
PROGRAMMA = f"{SOMME}/somme"


def banco(nome):
    """The file of a measurement's program, which is also the target that builds it."""
    return f"build/{ALBERO}/bench/bench_{nome}"


class Parte(NamedTuple):
    """cosa: what it measures. comando: what it runs. desktop: whether it is given one, on which
    nobody listens to the accessibility tree; others make their own."""

    cosa: str
    comando: tuple
    desktop: bool = True


# By name, in the order in which they run. Another measurement is a row here, a program (CMakeLists.txt)
# or a script that prints its figures as figura.h or figura.py have it.
PARTI = {
    "avvio": Parte("start and rest of the program, against an empty one",
                   (banco("avvio"), PROGRAMMA, banco("vuoto"))),
    "forme": Parte("how long forms, verdicts, keys and the record take", (banco("forme"), SOMME)),
    "cambio": Parte("the carry on the abacus", (banco("cambio"), SOMME)),
    "scansione": Parte("how even the steps of automatic scanning are", (banco("scansione"), SOMME)),
    "tocco": Parte("how soon a touch is on the screen", (banco("tocco"), SOMME)),
    "filmati": Parte("painting the boards", (banco("filmati"), SOMME)),
    "stampa": Parte("printing a long record, and the preview", (banco("stampa"),)),
    "visite": Parte("whether memory is given back", (banco("visite"),)),
    "riposo": Parte("what each form costs while nobody does anything",
                    (sys.executable, "bench/riposo.py", banco("riposo"), SOMME), desktop=False),
    "domande": Parte("verdicts while a screen reader asks for the whole tree",
                     (sys.executable, "bench/domande.py", banco("domande"), SOMME), desktop=False),
    "suoni": Parte("what the program costs after sounds",
                   (sys.executable, "bench/suoni.py", PROGRAMMA), desktop=False),
}


def costruisci(parti):
    """Builds the program's folder and what the parts run; whether that went well."""
    bersagli = [os.path.basename(parola) for parte in parti for parola in parte.comando
                if parola.startswith(banco(""))]
    return subprocess.run(["tools/costruisci", ALBERO, "-DSOMME_BENCH=ON", "cartella", *bersagli],
                          check=False).returncode == 0


def esegui(nome, parte):
    """Runs a part, says what it says, and gathers its figures. Gives a tabella.Esito."""
    figure = []
    try:
        with _desktop() if parte.desktop else contextlib.nullcontext():
            with subprocess.Popen(parte.comando, stdout=subprocess.PIPE, text=True) as processo:
                for riga in processo.stdout:
                    presa = figura.leggi(riga)
                    if presa:
                        figure.append(presa)
                        riga = presa.detta() + "\n"
                    print("  " + riga, end="", flush=True)
        guasto = _guasto(processo.returncode, figure)
    except (ErroreSchermo, OSError) as errore:
        guasto = str(errore)
    return tabella.Esito(nome, figure, guasto)


@contextlib.contextmanager
def _desktop():
    with Schermo(1366, 768):
        # As on a desktop without assistive technology.
        os.environ.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
        yield


def _guasto(stato, figure):
    if stato < 0:
        return f"was ended by {signal.Signals(-stato).name}"
    if stato > 0:
        return f"ended with {stato}"
    return None if figure else "gave no figure"


def _minuti(secondi):
    return f"{int(secondi) // 60}:{int(secondi) % 60:02}"


def esegui_tutte(parti):
    """Runs the parts and says how far it is. Gives their tabella.Esito."""
    inizio = time.monotonic()
    esiti = []
    for i, (nome, parte) in enumerate(parti.items(), 1):
        print(f"[{_minuti(time.monotonic() - inizio)}] part {i} of {len(parti)}: {nome}, {parte.cosa}",
              flush=True)
        esiti.append(esegui(nome, parte))
        if esiti[-1].guasto:
            print(f"  {tabella.FALLITA}: {nome} {esiti[-1].guasto}", flush=True)
    bene, detto = tabella.bilancio(esiti)
    print("", *tabella.righe(esiti), "", f"{_minuti(time.monotonic() - inizio)}: {detto}", sep="\n")
    return bene


def main(argomenti=None):
    opzioni = argparse.ArgumentParser(prog="bench/misura", description=__doc__,
                                      formatter_class=argparse.RawDescriptionHelpFormatter)
    opzioni.add_argument("--breve", action="store_true", help="fewer repetitions of everything")
    opzioni.add_argument("parti", nargs="*", metavar="part", help=", ".join(PARTI))
    scelte = opzioni.parse_args(argomenti)
    for nome in scelte.parti:
        if nome not in PARTI:
            opzioni.error(f"there is no part {nome}; the parts are {', '.join(PARTI)}")
    parti = {nome: PARTI[nome] for nome in scelte.parti or PARTI}
    os.chdir(RADICE)
    if not costruisci(parti.values()):
        return 1
    if scelte.breve:
        os.environ[figura.BREVE] = "1"
    return 0 if esegui_tutte(parti) else 1


if __name__ == "__main__":
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(130)
