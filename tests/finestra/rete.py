"""Starts a program in a network of its own, in which no neighbour has taken a port.

    rete.py PROGRAM [ARGUMENT...]    ends as the program does
    rete.py true                     whether this machine lets one do so
"""

import ctypes
import fcntl
import os
import socket
import struct
import sys

# From <linux/sched.h> and <linux/sockios.h>.
_NUOVO_UTENTE, _NUOVA_RETE = 0x10000000, 0x40000000
_LEGGI_STATO, _SCRIVI_STATO, _ACCESA = 0x8913, 0x8914, 1


def _parte():
    """Leaves the network of all for an empty one. Throws OSError where the machine does not allow it."""
    libreria = ctypes.CDLL(None, use_errno=True)
    utente, gruppo = os.getuid(), os.getgid()
    if libreria.unshare(_NUOVA_RETE) == 0:
        return
    # Who is not root needs a world of users for it, in which all keep their own numbers.
    if libreria.unshare(_NUOVO_UTENTE | _NUOVA_RETE) != 0:
        errore = ctypes.get_errno()
        raise OSError(errore, os.strerror(errore))
    for file, testo in (("setgroups", "deny"), ("uid_map", f"{utente} {utente} 1"),
                        ("gid_map", f"{gruppo} {gruppo} 1")):
        with open(f"/proc/self/{file}", "w", encoding="ascii") as mappa:
            mappa.write(testo)


def _accendi():
    """Wakes the address by which a machine speaks to itself."""
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as presa:
        chiesto = struct.pack("16sh22x", b"lo", 0)
        _, stato = struct.unpack("16sh22x", fcntl.ioctl(presa, _LEGGI_STATO, chiesto))
        fcntl.ioctl(presa, _SCRIVI_STATO, struct.pack("16sh22x", b"lo", stato | _ACCESA))


def main():
    try:
        _parte()
        _accendi()
    except OSError as errore:
        print(f"no network of its own: {errore}", file=sys.stderr)
        return 1
    os.execvp(sys.argv[1], sys.argv[1:])


if __name__ == "__main__":
    sys.exit(main())
