"""What the scripts in tools/ share."""

from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
