#!/usr/bin/python3
"""Makes a book of the page that all languages share and the texts of one.

    componi.py <page> <texts> <language file> <book> <folder of pictures> ...
    componi.py --controlla <page> <texts> <folder of language files>
    componi.py --pagine <book as PDF>

The page (libro.html.in) says what stands where: {name} is a text of the texts, {=Section/Key} one
of the language file, without the mark of its access key. A picture is put in by its name; one that
were only named would bear the folder that it lies in, and the book with it: two builds in different
folders would give different bytes.

Texts are told one after the other, in the order of the page or in another:

    primo.1: Alla prima schermata premete <i>Avvio</i>.
      A line that goes on is indented.

In them <i> is what the program says, word for word, <kbd> a key, <code> what stands in a file.

The second call tells whether the texts of a language fit the page and those of the other languages
beside them: none is missing or left over, each bears the same marks in every language, and what
stands in <i> is said by the program in that language. It ends with 1 where something is wrong. So does the
third, where a book has more than twenty pages.
"""

import base64
import collections
import html
import os
import re
import sys

INIZIO = re.compile(r"(?P<nome>[\w.]+): (?P<testo>\S.*)")
POSTO = re.compile(r"\{(?P<nome>[\w.]+)\}|\{=(?P<sezione>[^/{}]+)/(?P<chiave>[^{}]+)\}")
FIGURA = re.compile(r'src="([^":]+\.(?:png|svg))"')
SEGNO = re.compile(r"<(?!br)[a-z][^>]*>")
DETTO = re.compile(r"<i>(.*?)</i>")
TIPI = {".png": "image/png", ".svg": "image/svg+xml"}
PRIMA = "Italiano"  # the language that the others are held against


class Errore(Exception):
    """A file that cannot be read as what it should be."""


def leggi(percorso):
    with open(percorso, encoding="utf-8") as file:
        return file.read()


def testi(percorso):
    """The texts of a language, by their names."""
    letti = {}
    nome = None
    for numero, riga in enumerate(leggi(percorso).split("\n"), 1):
        if riga.startswith("#") or not riga.strip():
            continue
        if riga.startswith("  ") and nome is not None:
            letti[nome] += " " + riga.strip()
            continue
        inizio = INIZIO.fullmatch(riga.rstrip())
        if inizio is None:
            raise Errore(f"{percorso}:{numero}: neither a text nor one that goes on: {riga}")
        nome = inizio["nome"]
        if nome in letti:
            raise Errore(f"{percorso}:{numero}: {nome} for the second time")
        letti[nome] = inizio["testo"]
    return letti


def parole(percorso):
    """What the program says in a language, by section and key, without the marks of access keys."""
    dette = {}
    sezione = None
    for riga in leggi(percorso).split("\n"):
        if riga.startswith("[") and riga.endswith("]"):
            sezione = riga[1:-1]
        elif "=" in riga and not riga.startswith(";"):
            chiave, detto = riga.split("=", 1)
            dette[sezione, chiave] = detto.strip('"').replace("&", "").strip()
    return dette


def figura(nome, cartelle):
    for cartella in cartelle:
        percorso = os.path.join(cartella, nome)
        if os.path.exists(percorso):
            with open(percorso, "rb") as file:
                scritta = base64.b64encode(file.read()).decode("ascii")
            return f"data:{TIPI[os.path.splitext(nome)[1]]};base64,{scritta}"
    raise Errore(f"no picture {nome} in {', '.join(cartelle)}")


def componi(pagina, voci, dette, cartelle):
    def posto(trovato):
        try:
            if trovato["nome"]:
                return voci[trovato["nome"]]
            return html.escape(dette[trovato["sezione"], trovato["chiave"]], quote=False)
        except KeyError:
            raise Errore(f"nothing for {trovato[0]}") from None

    # A text that stands for a picture bears no marks.
    pagina = re.sub(r'alt="\{([\w.]+)\}"',
                    lambda t: f'alt="{html.escape(re.sub("<[^>]*>", "", voci.get(t[1], "")))}"', pagina)
    return FIGURA.sub(lambda t: f'src="{figura(t[1], cartelle)}"', POSTO.sub(posto, pagina))


def mancanze(pagina, voci, prime, dette):
    """What is wrong with the texts of a language, line by line."""
    chiesti = {trovato["nome"] for trovato in POSTO.finditer(pagina)} - {None}
    yield from (f"{nome} is missing" for nome in sorted(chiesti - voci.keys()))
    yield from (f"{nome} stands nowhere on the page" for nome in sorted(voci.keys() - chiesti))
    for nome in sorted(chiesti & voci.keys()):
        segni = [collections.Counter(SEGNO.findall(testo)) for testo in (voci[nome], prime.get(nome, ""))]
        if nome in prime and segni[0] != segni[1]:
            diversi = sorted(((segni[0] - segni[1]) + (segni[1] - segni[0])).elements())
            yield f"{nome} bears other marks than in {PRIMA}: {' '.join(diversi)}"
        for detto in DETTO.findall(voci[nome]):
            if html.unescape(detto) not in dette:
                yield f"{nome} quotes what the program does not say: {detto}"


def controlla(pagina, percorso, cartella):
    lingua = os.path.splitext(os.path.basename(percorso))[0]
    voci = testi(percorso)
    prime = testi(os.path.join(os.path.dirname(percorso), PRIMA + ".testi"))
    dette = set(parole(os.path.join(cartella, lingua + ".lng")).values())
    trovate = list(mancanze(leggi(pagina), voci, prime, dette))
    for una in trovate:
        print(f"{percorso}: {una}", file=sys.stderr)
    return 1 if trovate else 0


PAGINE = 20


def conta(percorso):
    """Whether a book keeps to its pages: the exit code; and says where it does not."""
    with open(percorso, "rb") as file:
        pagine = len(re.findall(rb"/Type */Page\b", file.read()))
    if 0 < pagine <= PAGINE:
        return 0
    print(f"{percorso} has {pagine} pages, {PAGINE} at most", file=sys.stderr)
    return 1


def main():
    if sys.argv[1] == "--pagine":
        return conta(*sys.argv[2:])
    if sys.argv[1] == "--controlla":
        return controlla(*sys.argv[2:])
    pagina, percorso, lingua, esito, *cartelle = sys.argv[1:]
    libro = componi(leggi(pagina), testi(percorso), parole(lingua), cartelle)
    with open(esito, "w", encoding="utf-8") as file:
        file.write(libro)
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (Errore, OSError) as errore:
        sys.exit(str(errore))
