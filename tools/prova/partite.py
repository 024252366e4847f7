"""The exercises that can be played, each by the input that its form takes.

What is asked is read from the screen, and the answer worked out from it.
"""

import re
import time

from giocatore import BOTTONE, TESTO, VOCE, Errore
from luce import Luce
from partite_abaco import abaco_scansione, abaco_tocco
from partite_blocchi import (blocchi, blocchi_scansione, blocchi_tocco, centinaia,
                             centinaia_scansione, centinaia_tocco)

PIU, UGUALE = "+", "="
# Seconds between two touches.
PAUSA_DITO = 0.3


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


def scansione(giocatore):
    """Plain numbers by scanning: manual with two keys, held and tapped, then automatic with one."""
    albero, mani = giocatore.albero, giocatore.mani
    cancella, conferma, avanti = "Cancella", "Conferma", "Avanti"

    def operazione():
        for etichetta in giocatore.etichette():
            trovato = re.search(r"(\d+) *\+ *(\d+) *= *$", etichetta.nome)
            if trovato:
                return [int(n) for n in trovato.groups()]
        return None

    luce = Luce(giocatore)
    acceso, passo = luce.acceso, luce.passo

    def somma(scegli):
        """A wrong answer, the bin, the right answer, the way on."""
        a, b = albero.aspetta("a sum to be found", operazione)
        print("Asked:    " + scrivi((a, b, "")))
        albero.aspetta("the light on '0'", lambda: acceso() == "0")

        def dai(numero):
            for cifra in str(numero):
                scegli(cifra)
            scegli(conferma)

        return a + b, dai

    def apri():
        giocatore.vai("Solo numeri")
        giocatore.vai("con e senza cambio")

    giocatore.segui([])
    albero.aspetta_oggetto(BOTTONE, "Solo numeri")
    mani.batti("ctrl+m")
    apri()
    risposta, dai = somma(luce.scegli_a_mano)
    ascolto = giocatore.ascolta()
    passo("space", tieni=1.5)
    for _ in range(5):
        passo("space")
    attesi = [(BOTTONE, str(n)) for n in range(1, 7)]
    albero.aspetta("six steps to be heard", lambda: len(ascolto.uditi()) >= 6)
    time.sleep(0.5)
    if ascolto.uditi() != attesi:
        raise Errore(f"heard of six steps: {ascolto.uditi()}")
    ascolto.chiudi()
    print("Heard:    " + " ".join(nome for _, nome in attesi))
    giocatore.fotografa("accesa")
    giocatore.rispondi(risposta + 1, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    luce.scegli_a_mano(cancella)
    giocatore.rispondi(risposta, dai, giusto=True)
    albero.aspetta("the light on the way on", lambda: acceso() == avanti)
    giocatore.fotografa("giusto")
    mani.batti("Return")
    albero.aspetta("the next sum", lambda: operazione() is not None)

    giocatore.premi("Esci", VOCE)
    giocatore.premi("Torna al menù principale")
    albero.aspetta_oggetto(BOTTONE, "Solo numeri")
    mani.batti("ctrl+a")
    mani.batti("ctrl+t")
    mani.batti("shift+Tab")
    for _ in range(8):
        mani.batti("Right")
    giocatore.fotografa("tre-secondi")
    mani.batti("Tab")
    mani.batti("Return")
    apri()
    risposta, dai = somma(luce.scegli_aspettando)
    giocatore.rispondi(risposta, dai, giusto=True)
    albero.aspetta("the light on the way on", lambda: acceso() == avanti)
    time.sleep(4)
    mani.batti("space")
    albero.aspetta("the next sum", lambda: operazione() is not None)
    giocatore.fotografa("automatica")


def tocco(giocatore):
    """Plain numbers by touch: every answer by the keys of the sheet, then back to the menu."""
    albero, tavoletta = giocatore.albero, giocatore.tavoletta
    cestino, conferma, avanti = 13, 15, 16

    def operazione():
        for etichetta in giocatore.etichette():
            trovato = re.search(r"(\d+) *\+ *(\d+) *= *$", etichetta.nome)
            if trovato:
                return [int(n) for n in trovato.groups()]
        return None

    def dai(numero):
        tavoletta.fai(f"tasto {cestino}")
        tavoletta.aspetta("mandato")
        for cifra in str(numero):
            # One touch after the other, as a hand is: two that come together are one.
            time.sleep(PAUSA_DITO)
            tavoletta.fai(f"tasto {int(cifra) + 1}")
        time.sleep(PAUSA_DITO)
        tavoletta.fai(f"tasto {conferma}")

    giocatore.segui([])
    albero.aspetta_oggetto(BOTTONE, "Solo numeri")
    giocatore.mani.batti("ctrl+h")
    giocatore.vai("Solo numeri")
    giocatore.vai("senza cambio")
    albero.aspetta_oggetto(BOTTONE, "OK")
    giocatore.fotografa("pronta")
    giocatore.premi("OK")
    a, b = albero.aspetta("a sum to be found", operazione)
    print("Asked:    " + scrivi((a, b, "")))
    giocatore.fotografa("domanda")
    giocatore.rispondi(a + b + 1, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    giocatore.rispondi(a + b, dai, giusto=True)
    giocatore.fotografa("giusto")
    time.sleep(PAUSA_DITO)
    tavoletta.fai(f"tasto {avanti}")
    albero.aspetta("the next sum", lambda: operazione() is not None)
    giocatore.premi("Esci", VOCE)
    tavoletta.aspetta("ricevuto 02#REQ-DEFAULT")
    tavoletta.aspetta("staccata")
    albero.aspetta_oggetto(BOTTONE, "senza cambio")
    giocatore.fotografa("di-nuovo-al-menu")


PARTITE = {partita.__name__: partita for partita in (
    barre, numeri, scansione, tocco, blocchi, centinaia, blocchi_scansione, centinaia_scansione,
    blocchi_tocco, centinaia_tocco, abaco_scansione, abaco_tocco)}
# Those that want a stand-in for the touch surface.
A_TOCCHI = {"tocco", "blocchi_tocco", "centinaia_tocco", "abaco_tocco"}
