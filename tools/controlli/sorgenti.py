"""The files that the rules speak of, and what every rule reads of them."""

import functools
import re
import subprocess

# The floors of the house, from the ground up. A room may include what lies on lower floors, and
# itself. The program's rooms are these; what stands beside them (tests, tools, benches) may include
# anything of theirs. "/*": each folder there that is no room of another floor.
PIANI = (
    ("platform/base",),
    ("platform/flash", "platform/forms", "platform/devices", "cases"),
    ("platform/boards", "games"),
    ("immagini", "app/shared"),
    ("printing", "input"),
    ("exercises/core",),
    ("exercises/*",),
    ("app",),
)
STANZE = tuple(stanza for piano in PIANI for stanza in piano)
# The namespace of each room that is named above; that of another is what its files say, and each has one
# of its own. Inline where the rooms above need not say in which room a name is at home:
# two rooms may then mean two things by one name, and whoever sees both has to say which.
SPAZI = {
    "platform/base": "platform::inline base",
    "platform/flash": "platform::flash",
    "platform/forms": "platform::inline forms",
    "platform/devices": "platform::inline devices",
    "platform/boards": "platform::inline boards",
    "cases": "somme::inline casi",
    "games": "somme::inline giochi",
    "immagini": "somme::inline immagini",
    "app/shared": "somme::inline condiviso",
    "printing": "somme::inline stampa",
    "input": "somme::inline ingresso",
    "exercises/core": "somme::inline nucleo",
    "app": "somme::inline programma",
}


def piano(stanza):
    """The floor of a room, counted from 0 at the ground."""
    return next(i for i, stanze in enumerate(PIANI)
                if stanza in stanze or stanza.rpartition("/")[0] + "/*" in stanze)


def stanza(percorso):
    """The room that a file belongs to; None for what stands beside the program."""
    cartella = percorso.rpartition("/")[0]
    parti = cartella.split("/")
    sopra = ["/".join(parti[:i]) for i in range(len(parti), 0, -1)]
    return next((s for s in sopra if s in STANZE or s.rpartition("/")[0] + "/*" in STANZE), None)


@functools.lru_cache(maxsize=None)
def tutti():
    """Every file of the repository, as git knows them, with those about to be added."""
    elenco = subprocess.run(["git", "ls-files", "-z", "--cached", "--others",
                             "--exclude-standard"], check=True, capture_output=True)
    presenti = (nome for nome in elenco.stdout.decode().split("\0") if nome)
    return tuple(sorted(set(presenti) - set(_tolti())))


def _tolti():
    elenco = subprocess.run(["git", "ls-files", "-z", "--deleted"], check=True,
                            capture_output=True)
    return elenco.stdout.decode().split("\0")


def cpp():
    """The C++ files of the whole repository."""
    return tuple(f for f in tutti() if f.endswith((".cpp", ".h")))


def prodotto():
    """The C++ files of which the program is made."""
    return tuple(f for f in cpp() if stanza(f))


@functools.lru_cache(maxsize=None)
def testo(percorso):
    """A file's text; empty where it holds none."""
    with open(percorso, "rb") as file:
        byte = file.read()
    return "" if b"\0" in byte else byte.decode("utf-8", "replace")


_DA_TOGLIERE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"([^(\s]*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|'
    r"(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])*'", re.S)


@functools.lru_cache(maxsize=None)
def codice(percorso):
    """A C++ file's text without comments, with empty literals; the lines keep their numbers."""
    def vuoto(trovato):
        righe = "\n" * trovato.group().count("\n")
        return righe if trovato.group().startswith("/") else '""' + righe
    return _DA_TOGLIERE.sub(vuoto, testo(percorso))


def riga(testo_, posto):
    """The line of a text, from 1, in which a place of it lies."""
    return testo_.count("\n", 0, posto) + 1


def commenti(percorso):
    """(where it begins, text) of the comments of a C++ file."""
    for trovato in _DA_TOGLIERE.finditer(testo(percorso)):
        if trovato[0].startswith(("//", "/*")):
            yield trovato.start(), trovato[0]


def inclusi(percorso):
    """The files of the repository that a C++ file includes."""
    nomi = re.findall(r'^\s*#\s*include\s*"([^"]+)"', testo(percorso), re.M)
    noti = set(cpp())
    return tuple(nome for nome in nomi if nome in noti)
