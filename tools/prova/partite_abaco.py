"""The abacus, played by scanning and by touch: a carry, a wrong and a right answer, the way on."""

import re
import time

from giocatore import AVANTI, BOTTONE, VOCE, Errore
from luce import Luce

PAUSA_DITO = 0.3  # seconds between two touches
LIVELLO = "cambio alle unità"  # up to 999; no other level bears this name
FAMIGLIA = "Abaco"


def _caso(giocatore):
    """The addends of the case; waits for one."""
    def operazione():
        for etichetta in giocatore.etichette():
            trovato = re.search(r"(\d+) *\+ *(\d+) *= *$", etichetta.nome)
            if trovato:
                return [int(n) for n in trovato.groups()]
        return None
    a, b = giocatore.albero.aspetta("a sum to be found", operazione)
    print(f"Asked:    {a} + {b} = ?")
    return a, b


def _sull_abaco(giocatore, che_cosa):
    """Waits until the abacus tells assistive technology what it should."""
    def detto():
        return [o.descrizione for o in giocatore.albero.visibili() if o.nome == FAMIGLIA]
    giocatore.albero.aspetta(f"{che_cosa!r} on the abacus", lambda: che_cosa in detto(), 30)
    print("Abacus:   " + che_cosa)


def _apri(giocatore, modo):
    giocatore.segui([])
    giocatore.albero.aspetta_oggetto(BOTTONE, FAMIGLIA)
    giocatore.mani.batti(modo)
    giocatore.vai(FAMIGLIA)
    giocatore.vai(LIVELLO)


def abaco_scansione(giocatore):
    """By manual scanning: ten units carry by themselves, the sum is written with the digits."""
    albero = giocatore.albero
    luce = Luce(giocatore)
    acceso, scegli = luce.acceso, luce.scegli_a_mano

    def dai(numero):
        for cifra in str(numero):
            scegli(cifra)
        scegli("Conferma")

    _apri(giocatore, "ctrl+m")
    a, b = _caso(giocatore)
    albero.aspetta("the light on 'h'", lambda: acceso() == "h")
    for _ in range(10):
        scegli("u")
    time.sleep(1)
    if acceso() is not None:
        raise Errore(f"the keyboard stays through the carry, lit on {acceso()!r}")
    giocatore.fotografa("cambio")
    _sull_abaco(giocatore, "1 decina")
    albero.aspetta("the light on 'h' again", lambda: acceso() == "h")
    scegli("Conferma")
    albero.aspetta("the light on '0'", lambda: acceso() == "0")
    giocatore.rispondi(a, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    scegli("Cancella")
    giocatore.rispondi(a + b, dai, giusto=True)
    albero.aspetta("the light on the way on", lambda: acceso() == "Avanti")
    giocatore.fotografa("giusto")
    giocatore.mani.batti("Return")
    _caso(giocatore)
    albero.aspetta("the light on 'h'", lambda: acceso() == "h")
    _sull_abaco(giocatore, "vuoto")
    giocatore.premi("Esci", VOCE)
    albero.aspetta_oggetto(BOTTONE, FAMIGLIA)


def abaco_tocco(giocatore):
    """By touch: a key carries ten units, and the abacus itself is the answer."""
    albero, tavoletta = giocatore.albero, giocatore.tavoletta
    centinaio, decina, unita, cambio, cestino, conferma, avanti = 2, 3, 4, 8, 10, 11, 12

    def tocca(tasto, volte=1):
        # One touch after the other, as a hand is: two that come together are one.
        for _ in range(volte):
            tavoletta.fai(f"tasto {tasto}")
            tavoletta.aspetta("mandato")
            time.sleep(PAUSA_DITO)

    def dai(numero):
        tocca(cestino)
        for tasto, quante in ((centinaio, numero // 100), (decina, numero // 10 % 10),
                              (unita, numero % 10)):
            tocca(tasto, quante)
        tocca(conferma)

    tavoletta.fai("foglio abaco")
    _apri(giocatore, "ctrl+h")
    giocatore.premi("OK")
    a, b = _caso(giocatore)
    tocca(unita, 10)
    _sull_abaco(giocatore, "10 unità")
    tocca(cambio)
    tocca(decina, 2)  # dropped: a carry goes on
    giocatore.fotografa("cambio")
    _sull_abaco(giocatore, "1 decina")
    giocatore.rispondi(a, dai, giusto=False)
    giocatore.fotografa("sbagliato")
    giocatore.rispondi(a + b, dai, giusto=True)
    cifre = [o.nome for o in giocatore.etichette() if re.fullmatch(r"\d", o.nome)]
    if "".join(cifre) != str(a + b):
        raise Errore(f"the digits of the sum are {cifre}")
    giocatore.fotografa("giusto")
    bottone = albero.aspetta_oggetto(BOTTONE, AVANTI)
    albero.aspetta(f"the focus on {AVANTI!r}", lambda: bottone.ha_il_fuoco)
    tocca(avanti)
    _caso(giocatore)
    _sull_abaco(giocatore, "vuoto")
    giocatore.premi("Esci", VOCE)
    tavoletta.aspetta("ricevuto 02#REQ-DEFAULT")
    tavoletta.aspetta("staccata")
    albero.aspetta_oggetto(BOTTONE, FAMIGLIA)
