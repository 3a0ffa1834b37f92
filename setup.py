"""Builds the Python module `orvalis`.

The engine is not compiled here: CMake builds the static library `orvalis_static` (the
engine, the call table and the case runner) and the module links it. ORVALIS_BUILD_DIR names
a CMake build folder to reuse (scripts/test.sh passes its own); by default the library is
built in build-python/ beside this file. A build made with the sanitizers cannot be loaded by
the interpreter and is refused.
"""
import os
import re
import subprocess
from pathlib import Path

from pybind11.setup_helpers import Pybind11Extension, build_ext
from setuptools import setup

RACINE = Path(__file__).resolve().parent


def version():
    texte = (RACINE / "CMakeLists.txt").read_text()
    return re.search(r"project\(orvalis VERSION ([0-9.]+)", texte).group(1)


def bibliotheque():
    dossier = Path(os.environ.get("ORVALIS_BUILD_DIR") or RACINE / "build-python").resolve()
    cache = dossier / "CMakeCache.txt"
    if not cache.exists():
        subprocess.run(["cmake", "-S", str(RACINE), "-B", str(dossier),
                        "-DCMAKE_BUILD_TYPE=RelWithDebInfo", "-DORVALIS_BENCHMARKS=OFF"], check=True)
    if re.search(r"^ORVALIS_SANITIZE:BOOL=ON$", cache.read_text(), re.M):
        raise SystemExit(f"{dossier} is built with the sanitizers; give a build without them")
    jobs = os.environ.get("CMAKE_BUILD_PARALLEL_LEVEL") or "2"
    subprocess.run(["cmake", "--build", str(dossier), "--target", "orvalis_static", "-j", jobs],
                   check=True)
    return dossier / "lib" / "liborvalis.a"


class BuildExt(build_ext):
    def run(self):
        lib = str(bibliotheque())
        for ext in self.extensions:
            ext.extra_objects = [lib]
            ext.depends = [*ext.depends, lib]
        super().run()


sources = sorted(str(p.relative_to(RACINE)) for p in (RACINE / "bindings" / "python").glob("*.cc"))

setup(
    version=version(),
    ext_modules=[Pybind11Extension("orvalis", sources, include_dirs=[str(RACINE), str(RACINE / "include")],
                                   cxx_std=20)],
    cmdclass={"build_ext": BuildExt},
    options={"build": {"build_base": "build-python/setuptools"}},
    packages=[],
    py_modules=[],
    zip_safe=False,
)
