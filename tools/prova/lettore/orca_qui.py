"""Runs the screen reader Orca on the desktop of the environment, whoever else runs one elsewhere.

    orca_qui.py <folder for its settings>

Its own command refuses to start beside another of the same user, on whatever desktop that is.
"""

import sys

from orca import orca

gestore = orca.getSettingsManager()
gestore.activate(sys.argv[1], {})
sys.path.insert(0, gestore.getPrefsDir())
sys.exit(orca.main())
