"""The bars, each form by its own kind of input: a wrong and a right answer, the way on."""

from dita import Dita
from giocatore import SCANSIONE, TESTO, TOCCO, VOCE, scrivi, trova
from luce import Luce

MENU = "Uso delle barre"
ENTRO_10, ENTRO_20 = "Fino al 10", "Fino al 20"
PIU, UGUALE = "+", "="
AIUTO = "aiuto"
CANCELLA, CONFERMA, AVANTI = "Cancella", "Conferma", "Avanti"


class Barre:
    """The written sum of a bars form, of which every term is a text of its own."""

    def __init__(self, giocatore):
        self._giocatore = giocatore

    def scritti(self):
        """The terms from left to right, empty where nothing is written.

        Where the answer is written into a box, that is the term on which the box lies. None while
        there is no sum on the screen.
        """
        oggetti = self._giocatore.albero.visibili()
        etichette = [o for o in oggetti if o.ruolo == "label"]
        piu = next((o for o in etichette if o.nome == PIU), None)
        uguale = next((o for o in etichette if o.nome == UGUALE), None)
        if piu is None or uguale is None:
            return None
        x_piu, alto, _, _ = piu.posto
        x_uguale = uguale.posto[0]
        termini = ["", "", ""]
        # The box last: it covers a term.
        for oggetto in etichette + [o for o in oggetti if o.ruolo == TESTO]:
            x, y, _, _ = oggetto.posto
            if abs(y - alto) <= 2 and x not in (x_piu, x_uguale):
                dove = 0 if x < x_piu else 1 if x < x_uguale else 2
                scritto = oggetto.testo if oggetto.ruolo == TESTO else oggetto.nome
                termini[dove] = scritto.strip()
        return termini

    def chiesta(self):
        """Waits for a sum with one empty term; returns the terms."""
        def aperta():
            termini = self.scritti()
            return termini if termini and termini.count("") == 1 else None
        return self._giocatore.chiesta(aperta)

    def gioca(self, dai, chiedi_aiuto):
        """A whole sum, with help; dai gives an answer as the form takes it."""
        termini = self.chiesta()
        risposta = trova(termini)
        chiedi_aiuto()
        self._giocatore.si_dice("help", ": " + ", ".join(["1"] * risposta or ["0"]))
        self._giocatore.prova(risposta, dai)
        termini[termini.index("")] = str(risposta)
        self._giocatore.albero.aspetta("the whole sum", lambda: self.scritti() == termini)
        print("Solved:   " + scrivi(termini))


def barre(giocatore):
    """Up to 10 with the mouse: two sums, on by Space and by Enter."""
    gioco = Barre(giocatore)

    def dai(numero):
        giocatore.premi(str(numero))

    giocatore.apri("FormBarre10", MENU, ENTRO_10)
    gioco.gioca(dai, lambda: giocatore.premi(AIUTO))
    giocatore.avanti("space")
    giocatore.rispondi(trova(gioco.chiesta()), dai, giusto=True)
    giocatore.fotografa("secondo")
    giocatore.avanti("Return")
    gioco.chiesta()


def barre_scritte(giocatore):
    """The keyboard form of the bars up to 10, to which only the mouse form leads; up to 20."""
    gioco = Barre(giocatore)

    def scritta():
        giocatore.albero.aspetta("the box with the keyboard", lambda: any(
            o.ruolo == TESTO and o.ha_il_fuoco for o in giocatore.albero.visibili()))
        gioco.gioca(giocatore.batti_numero, lambda: giocatore.premi_con_la_lettera(AIUTO, "a"))
        # The same Enter is released in the empty box of the next case, where it is no answer.
        giocatore.avanti("Return")
        gioco.chiesta()
        giocatore.rispondi(99, giocatore.batti_numero, giusto=False)
        giocatore.contano(1, 2)

    giocatore.vai(MENU)
    giocatore.vai(ENTRO_10)
    giocatore.apri("FormBarre10Tastiera")
    giocatore.premi("Utilizza la tastiera", VOCE)
    scritta()
    giocatore.esci(ENTRO_20)
    giocatore.apri("FormBarre20", ENTRO_20)
    scritta()
    giocatore.esci(ENTRO_20)


def barre_scansione(giocatore):
    """Both ranges by manual scanning: after a wrong answer the light stands on the bin."""
    gioco = Barre(giocatore)
    luce = Luce(giocatore)

    def dai(numero):
        if gioco.scritti().count("") == 0:
            giocatore.albero.aspetta("the light on the bin", lambda: luce.acceso() == CANCELLA)
            luce.usa()
            gioco.chiesta()
        for nome in (*str(numero), CONFERMA):
            luce.scegli_a_mano(nome)

    def illuminata():
        giocatore.albero.aspetta("the light on '0'", lambda: luce.acceso() == "0")
        gioco.gioca(dai, lambda: luce.scegli_a_mano("Aiuto"))
        giocatore.albero.aspetta("the light on the way on", lambda: luce.acceso() == AVANTI)
        luce.usa()
        gioco.chiesta()
        giocatore.esci(ENTRO_20)

    giocatore.apri("FormBarre10Scansione", MENU, ENTRO_10, modo=SCANSIONE)
    illuminata()
    giocatore.apri("FormBarre20Scansione", ENTRO_20)
    illuminata()


def barre_tocco(giocatore):
    """Both ranges by touch, each with a connection of its own."""
    gioco = Barre(giocatore)
    dita = Dita(giocatore)

    def toccata():
        giocatore.collega()
        gioco.gioca(dita.componi, lambda: dita.tocca(AIUTO))
        dita.avanti()
        gioco.chiesta()
        giocatore.esci(ENTRO_20)

    giocatore.apri("FormBarre10HK", MENU, ENTRO_10, modo=TOCCO)
    toccata()
    giocatore.apri("FormBarre20HK", ENTRO_20)
    toccata()
