"""The addition table: the cell of the result is clicked."""

from giocatore import BOTTONE, Errore, trova

# As the table is at the start only its first row and its first column are numbered; the other
# cells are called by their tens and units.
RIGHE = 10


def nome(numero):
    riga, colonna = divmod(numero, RIGHE)
    decine = "1 decina" if riga == 1 else f"{riga} decine"
    return f"{decine}, {colonna} unità" if riga and colonna else str(numero)


def tabella(giocatore):
    """With the mouse: a wrong cell, which takes no second click, the right one, the way on."""
    albero = giocatore.albero

    def cella(numero):
        return albero.aspetta_oggetto(BOTTONE, nome(numero))

    def dai(numero):
        giocatore.premi(nome(numero))

    giocatore.apri("FormTabella", "Tabella", "Somme")
    risposta = trova(giocatore.chiesta())
    sbagliata = risposta - 1 if risposta > 1 else risposta + 1
    altra = (risposta + 50) % 100
    giocatore.prova(risposta, dai)
    if cella(sbagliata).abilitato or cella(altra).abilitato:
        raise Errore("a cell of the solved case can be clicked")
    giocatore.avanti("space")
    albero.aspetta("the table to open again",
                   lambda: cella(sbagliata).abilitato and cella(risposta).abilitato)
    risposta = trova(giocatore.chiesta())
    giocatore.rispondi(risposta, dai, giusto=True)
    giocatore.esci("Somme")
