"""The rules, each with the places in which it may still be broken."""

import fnmatch
import os
import time

from . import mappa, pulizia, stile, struttura, testo

# The commit before which titles were longer.
_TITOLI_DA = "8362665"

_REGOLE = (
    ("format", testo.formato),
    ("includes go down", struttura.inclusioni_in_su),
    ("the house is drawn as it is", mappa.stanze_fuori_posto),
    ("no ring of headers", struttura.cicli_di_intestazioni),
    ("no knot", struttura.nodi_troppo_grandi),
    ("one name, one class", struttura.nomi_doppi),
    ("a namespace a room", struttura.spazi_altrui),
    ("no near-copy", testo.copie),
    ("short files", testo.file_lunghi),
    ("constants begin with k", testo.costanti),
    ("colours have names", testo.colori),
    ("one kind of comment", stile.tre_sbarre),
    ("bodies stand in braces", stile.corpi_senza_graffe),
    ("names say color and gray", stile.nomi_britannici),
    ("a Load has its base's in it", stile.caricamenti_senza_la_base),
    ("titles of commits", lambda: testo.titoli(_TITOLI_DA)),
    ("words", testo.parole),
)
_ECCEZIONI = os.path.join(os.path.dirname(__file__), "eccezioni")


def _eccezioni():
    """The lines of the file of exceptions: a rule, a tab, a pattern of what it says."""
    with open(_ECCEZIONI, encoding="utf-8") as file:
        righe = [riga.rstrip("\n") for riga in file if riga.strip() and not riga.startswith("#")]
    return [tuple(riga.split("\t", 1)) for riga in righe]


def prova_tutte(tutti_i_file=False):
    """Tries every rule; 1 if one is broken, or if an exception is no longer needed. clang-tidy reads the
    changed files, or all of them."""
    eccezioni = _eccezioni()
    usate, guasti, inizio = set(), 0, time.monotonic()
    da_pulire = pulizia.da_leggere() if tutti_i_file else pulizia.cambiati()
    regole = (*_REGOLE, ("clang-tidy", lambda: pulizia.guasti(da_pulire)))
    for nome, regola in regole:
        for detto in regola():
            scuse = [e for e in eccezioni if e[0] == nome and fnmatch.fnmatch(detto, e[1])]
            usate.update(scuse)
            if not scuse:
                guasti += 1
                print(f"{nome}: {detto}")
    for eccezione in eccezioni:
        if eccezione not in usate:
            guasti += 1
            print(f"{eccezione[0]}: nothing breaks this rule at {eccezione[1]} any more; "
                  f"take the line out of tools/controlli/eccezioni")
    print(f"{len(regole)} rules in {time.monotonic() - inizio:.1f} s, "
          f"clang-tidy over {len(da_pulire)} files: "
          + (f"broken in {guasti} places" if guasti else "all kept"))
    return 1 if guasti else 0
