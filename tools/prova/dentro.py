"""Commands inside of a tree that holds a Debian, with what they look for beside files."""

import contextlib
import fcntl
import os
import subprocess

# The kernel's own folders, seen from the tree as well, by the command and what it starts and by nobody
# else; and a folder of this machine, where one is named, under its own path.
DENTRO = r"""
set -e
radice=$1 esterna=$2 dove=$3
shift 3
for cosa in /sys /dev /dev/pts /dev/shm ${esterna:+"$esterna"}; do
  mkdir -p "$radice$cosa"
  mount --bind "$cosa" "$radice$cosa"
done
mount -t proc proc "$radice/proc"
exec chroot "$radice" sh -c 'cd "$1" && shift && exec "$@"' sh "$dove" "$@"
"""
AMBIENTE = {"PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/tmp",
            "LC_ALL": "C.UTF-8"}
DI_FUORI = ("DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "TMPDIR")


def chiama(radice, cartella, comando, esterna=False):
    """Runs a command in a folder of a tree, and shows what it says as it says it. Returns its status.

    esterna: the folder is one of this machine, and has the same path in the tree. Takes root.
    """
    ambiente = {nome: valore for nome, valore in os.environ.items() if nome not in DI_FUORI}
    return subprocess.run(["unshare", "--mount", "--pid", "--fork", "--kill-child", "sh", "-c", DENTRO, "sh",
                           radice, cartella if esterna else "", cartella, *comando],
                          env={**ambiente, **AMBIENTE}, stdin=subprocess.DEVNULL, check=False).returncode


@contextlib.contextmanager
def serratura(percorso):
    """Held by one process at a time; it goes with the process."""
    os.makedirs(os.path.dirname(percorso), exist_ok=True)
    with open(percorso, "w", encoding="ascii") as file:
        fcntl.flock(file, fcntl.LOCK_EX)
        yield
