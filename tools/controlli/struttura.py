"""Rules of the structure: who includes whom, and what is called how."""

import re
from collections import Counter, defaultdict

from . import sorgenti

# Files of the product that all know one another, at most.
NODO_AMMESSO = 3


def inclusioni_in_su():
    """Includes of what lies on the same floor in another room, or above."""
    for file in sorgenti.prodotto():
        qui = sorgenti.stanza(file)
        for incluso in sorgenti.inclusi(file):
            la = sorgenti.stanza(incluso)
            if la is None:
                yield f"{file}: includes {incluso}, which is no part of the program"
            elif la != qui and sorgenti.piano(la) >= sorgenti.piano(qui):
                yield f"{file}: includes {incluso}, of a room that does not lie below {qui}"


def anelli(archi):
    """Groups of more than one node that reach one another; archi: node -> nodes."""
    indice, basso, pila, sopra, gruppi = {}, {}, [], set(), []

    def visita(partenza):
        lavoro = [(partenza, iter(archi.get(partenza, ())))]
        indice[partenza] = basso[partenza] = len(indice)
        pila.append(partenza)
        sopra.add(partenza)
        while lavoro:
            nodo, seguenti = lavoro[-1]
            for altro in seguenti:
                if altro not in indice:
                    indice[altro] = basso[altro] = len(indice)
                    pila.append(altro)
                    sopra.add(altro)
                    lavoro.append((altro, iter(archi.get(altro, ()))))
                    break
                if altro in sopra:
                    basso[nodo] = min(basso[nodo], indice[altro])
            else:
                lavoro.pop()
                if lavoro:
                    basso[lavoro[-1][0]] = min(basso[lavoro[-1][0]], basso[nodo])
                if basso[nodo] == indice[nodo]:
                    gruppo = set()
                    while nodo not in gruppo:
                        gruppo.add(pila.pop())
                    sopra.difference_update(gruppo)
                    if len(gruppo) > 1:
                        gruppi.append(sorted(gruppo))

    for nodo in list(archi):
        if nodo not in indice:
            visita(nodo)
    return sorted(gruppi, key=lambda g: (-len(g), g))


def cicli_di_intestazioni():
    """Headers that include one another in a ring."""
    archi = {f: [i for i in sorgenti.inclusi(f) if i.endswith(".h")]
             for f in sorgenti.cpp() if f.endswith(".h")}
    for gruppo in anelli(archi):
        yield "headers that include one another: " + ", ".join(gruppo)


def nodi():
    """Groups of the product's files that all know one another, header and source taken as one."""
    archi = defaultdict(set)
    for file in sorgenti.prodotto():
        nome = file.rpartition(".")[0]
        archi[nome].update(i.rpartition(".")[0] for i in sorgenti.inclusi(file))
        archi[nome].discard(nome)
    return anelli(archi)


def nodi_troppo_grandi():
    """Knots of more files than a head holds."""
    for nodo in nodi():
        if len(nodo) > NODO_AMMESSO:
            yield f"{len(nodo)} files that all know one another: " + ", ".join(nodo)


_APRE = re.compile(
    r"\b(?P<spazio>(?:inline\s+)?namespace)\b(?P<nomi>[\w:\s]*)\{|"
    r"(?<![\w<,])(?P<chiave>enum\s+class|enum\s+struct|enum|class|struct|union)\s+"
    r"(?:\[\[[^\]]*\]\]\s*)?(?P<tipo>[A-Za-z_]\w*(?:::\w+)*)(?P<resto>[^;{}()=]*)\{|"
    r"(?P<apre>\{)|(?P<chiude>\})")


def tipi_definiti(percorso):
    """(full name, line) of every type that a file defines for others to see: those of unnamed
    namespaces and of function bodies are nobody else's."""
    codice = sorgenti.codice(percorso)
    dentro = []  # what each open brace belongs to: a name, "" for an unnamed namespace, None
    for trovato in _APRE.finditer(codice):
        if trovato["chiude"]:
            if dentro:
                dentro.pop()
            continue
        if trovato["apre"]:
            dentro.append(None)
            continue
        nome = (trovato["nomi"].strip() if trovato["spazio"] else trovato["tipo"])
        visibile = "" not in dentro and None not in dentro
        if trovato["tipo"] and visibile and "<" not in trovato["resto"].split(":")[0]:
            yield "::".join([*dentro, nome]), sorgenti.riga(codice, trovato.start())
        dentro.append(nome)


_SPAZIO_ESTERNO = re.compile(r"^namespace\s+(?P<nomi>(?:somme|platform)\b[\w:]*(?:\s*inline\s+\w+)?[\w:]*)\s*\{"
                            r"(?P<primo>[^{}]*)", re.M)
_SOLO_ANNUNCI = re.compile(r"(?:\s*(?:template\s*<[^<>]*>\s*)?(?:class|struct|enum\s+class)\s+\w+"
                           r"(?:\s*:\s*\w+)?;)*\s*")


def spazi_altrui():
    """Places of a room in which something is defined in another namespace than the room's own. What is
    announced there and defined in its own room is none."""
    aperti = defaultdict(list)  # room -> (file, line, namespace)
    for percorso in sorgenti.prodotto():
        aperti[sorgenti.stanza(percorso)] += [(percorso, *dove) for dove in _spazi_esterni(percorso)]
    propri = dict(sorgenti.SPAZI)
    for stanza in sorted(s for s in aperti if aperti[s] and s not in sorgenti.SPAZI):
        proprio = _piu_detto(nomi for _, _, nomi in aperti[stanza])
        if not re.fullmatch(r"somme::inline \w+", proprio) or proprio in propri.values():
            yield f"{stanza}: no namespace of its own, but {proprio}"
        propri[stanza] = proprio
    for stanza, posti in aperti.items():
        for percorso, riga, nomi in posti:
            if nomi != propri[stanza] and not nomi.startswith(propri[stanza] + "::"):
                yield f"{percorso}:{riga}: namespace {nomi}, where the room has {propri[stanza]}"


def _piu_detto(nomi):
    """The room's part of the namespaces that most of a room's files open."""
    return Counter(re.match(r"\w+(?:::inline \w+)?", n)[0] for n in nomi).most_common(1)[0][0]


def _spazi_esterni(percorso):
    """(line, namespace) of what a file defines."""
    codice = sorgenti.codice(percorso)
    for trovato in _SPAZIO_ESTERNO.finditer(codice):
        annunci = (_SOLO_ANNUNCI.fullmatch(trovato["primo"])
                   and codice[trovato.end():trovato.end() + 1] == "}")
        if not annunci:
            yield sorgenti.riga(codice, trovato.start()), " ".join(trovato["nomi"].split())


def nomi_doppi():
    """Types, or inline functions and variables, of one full name that two files of one program define:
    of the product, or of the tests of a folder, which stand in one program with the product and what
    all tests share."""
    dove = _definizioni(sorgenti.prodotto())
    yield from _doppi(dove, dove)
    comuni = _definizioni(f for f in sorgenti.cpp() if f.startswith("tests/support/"))
    prove = defaultdict(list)
    for file in sorgenti.cpp():
        if file.startswith("tests/"):
            prove[file.rpartition("/")[0]].append(file)
    for cartella, file in sorted(prove.items()):
        proprie = _definizioni(file)
        altrove = (dove,) if cartella == "tests/support" else (dove, comuni)
        yield from _doppi(proprie, {nome: sum((d.get(nome, []) for d in altrove), posti)
                                    for nome, posti in proprie.items()})


_IN_LINEA = re.compile(r"^inline\s+(?!namespace\b)[^;{}()=]*?\b(?P<nome>\w+)\s*"
                       r"(?P<argomenti>\((?:[^;(){}]|\{\})*\))?\s*(?:const\s*)?[={]", re.M)


def in_linea(percorso):
    """(full name, line) of the inline functions, with the types of their arguments, and of the inline
    variables that a file defines. Of two of one name the linker takes the first one's for both."""
    codice = sorgenti.codice(percorso)
    for trovato in _IN_LINEA.finditer(codice):
        argomenti = re.sub(r"\s*=[^,)]*|\s*\b\w+(?=\s*[,)=])", "", trovato["argomenti"] or "")
        dentro = [n for n in _spazi(codice, trovato.start())]
        if "" not in dentro:
            yield ("::".join([*dentro, trovato["nome"]]) + argomenti,
                   sorgenti.riga(codice, trovato.start("nome")))


def _spazi(codice, fin_qui):
    """The namespaces that a place of a file lies in; "" for an unnamed one."""
    dentro = []
    for trovato in _APRE.finditer(codice, 0, fin_qui):
        if trovato["chiude"]:
            del dentro[-1:]
        elif trovato["apre"]:
            dentro.append(None)
        else:
            dentro.append(trovato["nomi"].strip() if trovato["spazio"] else trovato["tipo"])
    return dentro


def _definizioni(file):
    """Full name -> the places in those files that define a type of it, or something inline."""
    dove = defaultdict(list)
    for percorso in file:
        for nome, riga in (*tipi_definiti(percorso), *in_linea(percorso)):
            dove[nome].append(f"{percorso}:{riga}")
    return dove


def _doppi(nomi, dove):
    for nome in sorted(nomi):
        if len({posto.rpartition(":")[0] for posto in dove[nome]}) > 1:
            yield f"{nome} is defined more than once: " + ", ".join(dove[nome])
