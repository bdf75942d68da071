"""Printed-circuit boards from their four export files.

    board = kestrin.read("examples/board")
    board.components["U_1"].pins["3"].net.name
    board.nets["GND"].length["TOP"]

Lengths and coordinates are in millimetres, angles in degrees; x points right and y up.
"""

from kestrin._kestrin import *
from kestrin._kestrin import __version__ as __version__
from kestrin._many import tables as tables
from kestrin._reading import dump as dump
from kestrin._reading import read as read

__all__ = [name for name in globals() if not name.startswith("_")]
