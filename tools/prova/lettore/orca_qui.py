"""Runs the screen reader Orca on the desktop of the environment, whoever else runs one elsewhere.

    orca_qui.py <folder for its settings>

Its own command refuses to start beside another of the same user, on whatever desktop that is.
LETTORE_ASPETTA, seconds: how long it waits for the program's answer to each question, where that is not as
long as everywhere, which is too short for a machine that is busy with more than the program.
"""

import os
import sys

import gi
from orca import orca

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

if "LETTORE_ASPETTA" in os.environ:
    DOPO_L_AVVIO = 15000  # milliseconds, as everywhere
    Atspi.set_timeout(int(1000 * float(os.environ["LETTORE_ASPETTA"])), DOPO_L_AVVIO)
gestore = orca.getSettingsManager()
gestore.activate(sys.argv[1], {})
sys.path.insert(0, gestore.getPrefsDir())
sys.exit(orca.main())
