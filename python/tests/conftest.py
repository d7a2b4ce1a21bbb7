import os
from pathlib import Path

import pytest

import varorobotmodel as vr

ROBOTS = Path(__file__).resolve().parents[2] / "robots"


@pytest.fixture(scope="session")
def robots():
    return ROBOTS


@pytest.fixture
def humanoid():
    return vr.load(ROBOTS / "humanoid.xml")


@pytest.fixture(scope="session")
def tool():
    return os.environ["VARO_ROBOT"]
