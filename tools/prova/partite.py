"""The exercises that can be played, each by the input that its form takes.

What is asked is read from the screen, and the answer worked out from it.
"""

import re

from giocatore import BOTTONE, TESTO, VOCE, Errore

PIU, UGUALE = "+", "="


def scrivi(termini):
    a, b, c = (t or "?" for t in termini)
    return f"{a} {PIU} {b} {UGUALE} {c}"


def barre(giocatore):
    """The bars up to 10: a wrong and two right answers with the mouse, on by Space and Enter."""
    albero = giocatore.albero

    def somma():
        """The written sum: three texts from left to right, the one that is asked for empty.

        None while it is not on the screen.
        """
        etichette = giocatore.etichette()
        piu = next((o for o in etichette if o.nome == PIU), None)
        uguale = next((o for o in etichette if o.nome == UGUALE), None)
        if piu is None or uguale is None:
            return None
        x_piu, alto, _, _ = piu.posto
        x_uguale = uguale.posto[0]
        termini = ["", "", ""]
        for etichetta in etichette:
            x, y, _, _ = etichetta.posto
            if abs(y - alto) <= 2 and x not in (x_piu, x_uguale):
                dove = 0 if x < x_piu else 1 if x < x_uguale else 2
                termini[dove] = etichetta.nome.strip()
        return termini

    def domanda():
        """Waits for a sum of which one term is asked for; the terms and the answer."""
        def aperta():
            termini = somma()
            return termini if termini and termini.count("") == 1 else None
        termini = albero.aspetta("a sum with a term to be found", aperta)
        a, b, c = (int(t) if t else None for t in termini)
        print("Asked:    " + scrivi(termini))
        return termini, c - b if a is None else c - a if b is None else a + b

    def dai(numero):
        giocatore.premi(str(numero))

    giocatore.segui(["Uso delle barre", "Fino al 10"])
    termini, risposta = domanda()
    giocatore.fotografa("domanda")
    giocatore.rispondi((risposta + 1) % 11, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    giocatore.rispondi(risposta, dai, giusto=True)
    termini[termini.index("")] = str(risposta)
    albero.aspetta("the whole sum", lambda: somma() == termini)
    print("Solved:   " + scrivi(termini))
    giocatore.fotografa("giusto")

    giocatore.avanti("space")
    _, risposta = domanda()
    giocatore.rispondi(risposta, dai, giusto=True)
    giocatore.fotografa("secondo")
    giocatore.avanti("Return")
    domanda()


def numeri(giocatore):
    """Plain numbers: a wrong and a right answer with the keys, the record, back to the menu."""
    albero = giocatore.albero

    def operazione():
        for etichetta in giocatore.etichette():
            trovato = re.search(r"(\d+) *\+ *(\d+) *=", etichetta.nome)
            if trovato:
                return [int(n) for n in trovato.groups()]
        return None

    def dai(numero):
        # A wrong answer stands in the box until a click opens it again, with what it holds.
        box = next(o for o in albero.visibili() if o.ruolo in (TESTO, "panel"))
        giocatore.mani.clicca(box.posto)
        giocatore.mani.batti("ctrl+a")
        for cifra in str(numero):
            giocatore.mani.batti(cifra)
        giocatore.mani.batti("Return")

    giocatore.segui(["Solo numeri", "con e senza cambio"])
    a, b = albero.aspetta("a sum to be found", operazione)
    print("Asked:    " + scrivi((a, b, "")))
    giocatore.fotografa("domanda")
    giocatore.rispondi(a + b - 1, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    giocatore.rispondi(a + b, dai, giusto=True)
    giocatore.fotografa("giusto")

    giocatore.premi("Stampa", VOCE)
    elenco = albero.aspetta_oggetto(TESTO, "Elenco delle somme risolte")
    righe = [r.split() for r in elenco.testo.splitlines() if PIU in r]
    if righe != [[str(a), PIU, str(b), UGUALE, str(a + b)]]:
        raise Errore(f"the record does not hold the solved case alone: {elenco.testo!r}")
    print("Recorded: " + " ".join(righe[0]))
    giocatore.fotografa("elenco")
    giocatore.premi("Chiudi")
    giocatore.avanti("space")
    albero.aspetta("the next sum", lambda: operazione() is not None)
    giocatore.premi("Esci", VOCE)
    albero.aspetta_oggetto(BOTTONE, "con e senza cambio")
    giocatore.fotografa("di-nuovo-al-menu")


PARTITE = {partita.__name__: partita for partita in (barre, numeri)}
