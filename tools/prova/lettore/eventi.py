"""Writes down the events of the accessibility bus, a line each:

    <seconds, monotonic>\t<process number>\t<interface>\t<member>\t<detail>

It asks for none, so that the programs send what the screen reader has asked for. Begins with "ready".
"""

import time

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

INDIRIZZO = ("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
POSTINO = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")


def main():
    sessione = Gio.bus_get_sync(Gio.BusType.SESSION)
    (indirizzo,) = sessione.call_sync(*INDIRIZZO, None, None, 0, -1, None).unpack()
    bus = Gio.DBusConnection.new_for_address_sync(
        indirizzo, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
        | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    processi = {}

    def processo(chi):
        if chi not in processi:
            try:
                risposta = bus.call_sync(*POSTINO, "GetConnectionUnixProcessID",
                                         GLib.Variant("(s)", (chi,)), None, 0, -1, None)
                processi[chi] = risposta.unpack()[0]
            except GLib.Error:
                processi[chi] = 0
        return processi[chi]

    def udito(_, chi, __, interfaccia, membro, parametri):
        if interfaccia.startswith("org.a11y.atspi.Event."):
            dettaglio = parametri.unpack()[0] if parametri.n_children() else ""
            print(f"{time.monotonic():.4f}\t{processo(chi)}\t{interfaccia.rpartition('.')[2]}"
                  f"\t{membro}\t{dettaglio}", flush=True)

    bus.signal_subscribe(None, None, None, None, None, Gio.DBusSignalFlags.NONE, udito)
    print("ready", flush=True)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
