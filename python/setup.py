"""pip's build of the tarvola package from a checkout:

    pip install --no-build-isolation ./python
    # Debian 12's system Python also wants --break-system-packages, or use a
    # venv made with --system-site-packages

The extension is compiled from the library's and the tool's sources (no
prebuilt library needed) with the pybind11 headers of Debian's
pybind11-dev. The Basque data set is installed inside the package when it
has been built (TARVOLA_DATA_DIR, else build*/data/built of the checkout);
otherwise Engine() finds the data as the tool does.
"""
import glob
import os
import shutil

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext
from setuptools.command.build_py import build_py

HERE = os.path.dirname(os.path.abspath(__file__))
TOP = os.path.dirname(HERE)
CLI = os.path.join(TOP, "cli")


def data_dir():
    given = os.environ.get("TARVOLA_DATA_DIR")
    if given:
        if not os.path.isfile(os.path.join(given, "tarvola.conf")):
            raise SystemExit("TARVOLA_DATA_DIR=%s holds no tarvola.conf" % given)
        return given
    built = glob.glob(os.path.join(TOP, "build*", "data", "built", "tarvola.conf"))
    return os.path.dirname(max(built, key=os.path.getmtime)) if built else None


class BuildPy(build_py):
    def run(self):
        super().run()
        source = data_dir()
        if source is None:
            print("tarvola: no built data set found; Engine() will look for one as the tool does")
            return
        target = os.path.join(self.build_lib, "tarvola", "data")
        os.makedirs(target, exist_ok=True)
        for name in os.listdir(source):
            if name == "tarvola.conf" or name.endswith(".txt"):
                shutil.copy2(os.path.join(source, name), target)


class BuildExt(build_ext):
    def build_extensions(self):
        # Two compile jobs at most unless asked: the sources are many and
        # the machines small.
        if self.parallel is None:
            self.parallel = int(os.environ.get("TARVOLA_JOBS", "2"))
        super().build_extensions()


def include_dirs():
    dirs = [TOP, CLI]
    try:
        import pybind11  # the Python package, when installed
        dirs.append(pybind11.get_include())
    except ImportError:
        pass  # pybind11-dev's headers are on the default include path
    return dirs


sources = sorted(glob.glob(os.path.join(TOP, "tarvola", "**", "*.cpp"), recursive=True))
sources += [os.path.join(CLI, "common", n + ".cc")
            for n in ("dictionary_change", "encoding", "engine", "io", "json", "paragraphs",
                      "platform")]
sources.append(os.path.join(HERE, "src", "module.cc"))

extension = Extension(
    "tarvola._tarvola",
    sources=sources,
    include_dirs=include_dirs(),
    language="c++",
    define_macros=[
        ("TARVOLA_BUILDING", None),
        ("TARVOLA_BUILT_CONFIG", '"%s"' % os.path.join(TOP, "build", "data", "built", "tarvola.conf")),
        ("TARVOLA_DEMO_CONFIG", '"%s"' % os.path.join(TOP, "data", "demo", "tarvola.conf")),
        ("TARVOLA_SHARE_FROM_BIN", '"../share/tarvola"'),
    ],
    extra_compile_args=["-std=c++17", "-fvisibility=hidden", "-O2"],
)

setup(
    name="tarvola",
    version="0.1.0",
    description="Basque morphological analysis",
    packages=["tarvola"],
    package_dir={"tarvola": os.path.join("tarvola")},
    package_data={"tarvola": ["py.typed", "*.pyi"]},
    ext_modules=[extension],
    cmdclass={"build_py": BuildPy, "build_ext": BuildExt},
    python_requires=">=3.9",
    extras_require={"dask": ["dask", "distributed"]},
    zip_safe=False,
)
