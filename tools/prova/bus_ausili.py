"""The bus of assistive technology, on which a program is asked many things at once.

A question that is waited for by itself costs two changes between processes; a hundred that are asked
together cost hardly more of them.
"""

import os

import dbus.bus
import dbus.lowlevel

SECONDI = 20  # for an answer


class Bus:
    """The connection of one who asks."""

    def __init__(self):
        """Joins the bus of the desktop that the environment names."""
        sessione = _entra(os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self._bus = _entra(sessione.call_blocking("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus",
                                                  "GetAddress", "", ()))
        sessione.close()

    def chiedi(self, domande):
        """The answers to questions, in their order; None for one that got an error, or none in time.

        A question is (name on the bus, path, interface, member, *arguments), all of them texts but the
        arguments, which are of dbus's kinds.
        """
        risposte = [None] * len(domande)
        attese = []
        for i, (chi, percorso, interfaccia, membro, *argomenti) in enumerate(domande):
            messaggio = dbus.lowlevel.MethodCallMessage(chi, percorso, interfaccia, membro)
            messaggio.append(*argomenti)

            def serba(risposta, i=i):
                if not isinstance(risposta, dbus.lowlevel.ErrorMessage):
                    risposte[i] = risposta.get_args_list()[0]
            attese.append(self._bus.send_message_with_reply(messaggio, serba, SECONDI))
        for attesa in attese:
            attesa.block()
        return risposte


def _entra(indirizzo):
    bus = dbus.bus.BusConnection(indirizzo)
    # A desktop may go before those who have looked at it.
    bus.set_exit_on_disconnect(False)
    return bus
