"""Builds the Python package with CMake, for pip. The library and the tool go into the package's folder.

CMAKE_ARGS in the environment goes to CMake: CMAKE_ARGS="-DVAROROBOTMODEL_VIEWER=OFF" pip install .
"""

import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = Path(__file__).resolve().parent


class CMakeBuild(build_ext):
    """What setuptools would compile, CMake does."""

    def build_extension(self, ext):
        package = Path(self.get_ext_fullpath(ext.name)).resolve().parent
        build = Path(self.build_temp).resolve()
        options = {
            "CMAKE_BUILD_TYPE": "Release",
            "CMAKE_INSTALL_LIBDIR": f"{package.name}/lib",
            "CMAKE_INSTALL_BINDIR": f"{package.name}/bin",
            "Python_EXECUTABLE": sys.executable,
            "VAROROBOTMODEL_BUILD_EXAMPLES": "OFF",
            "VAROROBOTMODEL_BUILD_PYTHON": "ON",
            "VAROROBOTMODEL_BUILD_TESTS": "OFF",
            "VAROROBOTMODEL_PYTHON_DIR": ".",
            "VAROROBOTMODEL_WERROR": "OFF",
        }
        arguments = [f"-D{name}={value}" for name, value in options.items()]
        arguments += shlex.split(os.environ.get("CMAKE_ARGS", ""))
        self._run("cmake", "-G", "Ninja", "-S", ROOT, "-B", build, *arguments)
        self._run("cmake", "--build", build)
        for component in ("runtime", "tool", "python"):
            self._run("cmake", "--install", build, "--prefix", package.parent, "--component", component)
        self._replace_links(package / "lib")

    @staticmethod
    def _run(*command):
        subprocess.run([str(argument) for argument in command], check=True)

    @staticmethod
    def _replace_links(folder):
        """Wheels have no links: the library is there once, under the name that programs look for."""
        for link in folder.iterdir():
            if link.is_symlink():
                link.resolve().rename(link)


def version():
    """That of the project."""
    return re.search(r"project\(varorobotmodel VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())[1]


setup(version=version(), ext_modules=[Extension("varorobotmodel._core", [])], cmdclass={"build_ext": CMakeBuild})
