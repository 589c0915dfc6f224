"""Finding and loading kel_c, first match:

1. the environment variable KEL_C_LIBRARY (a file or the folder that holds it): only that;
2. the library inside the package (kel/_lib/, package data found with importlib.resources):
   what `pip install` of a checkout or of the wheel puts there, with the simulated engine;
3. the library of a CMake installation, whose place the installation wrote next to the
   package (kel/_installed.py);
4. a build tree around a source checkout (build/linux, build/release);
5. the system loader (libkel_c.so.0 on the loader's path)."""

from __future__ import annotations

import ctypes
import ctypes.util
import importlib.resources
import os
import pathlib
import sys
import threading
from typing import Any, Optional

from .errors import LibraryNotFound
from .generated import c_records

ENVIRONMENT = "KEL_C_LIBRARY"
NAME = "kel_c.dll" if sys.platform == "win32" else "libkel_c.so"
# Build folders of a source checkout, in the order they are tried (presets with
# sanitizers cannot be loaded into a plain interpreter).
BUILD_PRESETS = ("linux", "release")

_lock = threading.Lock()
_loaded: Optional[Any] = None

_c_void_p_p = ctypes.POINTER(ctypes.c_void_p)
# The exports the runtime calls itself: name -> (result, arguments).
RUNTIME_EXPORTS: dict[str, tuple[Any, list[Any]]] = {
    "kel_getTarnApi": (ctypes.c_void_p, []),
    "kel_getRemoteConnectionByHandle": (ctypes.c_void_p, [ctypes.c_uint64, _c_void_p_p]),
    "releaseTarnApi": (None, [ctypes.c_void_p]),
    "allocate_Memory": (ctypes.c_void_p, [ctypes.c_size_t]),
    "duplicate_WString": (ctypes.c_void_p, [ctypes.c_wchar_p]),
    "release_Memory": (None, [ctypes.c_void_p]),
    "release_KelError": (None, [ctypes.c_void_p]),
    "py_call_checked": (ctypes.c_int32, [ctypes.c_void_p, ctypes.c_int32, ctypes.c_uint64, ctypes.c_char_p,
                                         ctypes.c_uint64, ctypes.POINTER(ctypes.c_uint32), _c_void_p_p]),
    "py_result": (None, [ctypes.c_void_p, ctypes.c_int32, ctypes.c_void_p]),
    "kel_getState": (None, [ctypes.c_void_p, _c_void_p_p, ctypes.POINTER(ctypes.c_int32)]),
}


def _installed() -> Optional[pathlib.Path]:
    """The library folder of an installation, written next to the package when installed."""
    try:
        from . import _installed as installed  # type: ignore[attr-defined]
    except ImportError:
        return None
    return (pathlib.Path(__file__).resolve().parent / str(installed.LIBRARY_DIR)).resolve()


def _packaged() -> Optional[pathlib.Path]:
    """The library carried as package data (kel/_lib/), when this package has one."""
    try:
        resource = importlib.resources.files(__package__).joinpath("_lib", NAME)
    except (TypeError, ModuleNotFoundError):  # not imported as a package
        return None
    # A package installed from a wheel is a folder, so the resource is a file of its own.
    return pathlib.Path(str(resource)) if resource.is_file() else None


def candidates() -> list[pathlib.Path]:
    """The files tried, in order (the system loader comes after them)."""
    found: list[pathlib.Path] = []
    given = os.environ.get(ENVIRONMENT)
    if given:
        path = pathlib.Path(given)
        found.append(path / NAME if path.is_dir() else path)
        return found  # a library named explicitly is the only one wanted
    packaged = _packaged()
    if packaged is not None:
        found.append(packaged)
    installed = _installed()
    if installed is not None:
        found.append(installed / NAME)
    checkout = pathlib.Path(__file__).resolve().parent.parent
    if (checkout / "CMakePresets.json").exists():
        found += [checkout / "build" / preset / "bin" / NAME for preset in BUILD_PRESETS]
    return found


def load(path: Optional[str] = None) -> Any:
    """The loaded library with its exports declared; loaded once per process unless a
    path is given."""
    global _loaded
    if path is not None:
        return _open(pathlib.Path(path))
    with _lock:
        if _loaded is None:
            _loaded = _find()
        return _loaded


def _find() -> Any:
    tried = []
    for path in candidates():
        if path.exists():
            return _open(path)
        tried.append(f"{path} (missing)")
    if os.environ.get(ENVIRONMENT):
        raise LibraryNotFound(f"{ENVIRONMENT} names {tried[0]}")
    system = ctypes.util.find_library("kel_c") or ("kel_c.dll" if sys.platform == "win32" else "libkel_c.so.0")
    try:
        return _declare(ctypes.CDLL(system))
    except OSError as e:
        tried.append(f"{system} through the system loader ({e})")
    raise LibraryNotFound("kel_c was not found; set " + ENVIRONMENT + " to the library's path. Tried:\n  "
                          + "\n  ".join(tried))


def _open(path: pathlib.Path) -> Any:
    if sys.platform == "win32":
        # The engine and runtime DLLs lie next to kel_c.dll.
        os.add_dll_directory(str(path.resolve().parent))
    try:
        return _declare(ctypes.CDLL(str(path)))
    except OSError as e:
        raise LibraryNotFound(f"cannot load {path}: {e}") from e


def _declare(lib: Any) -> Any:
    for name, (result, arguments) in {**RUNTIME_EXPORTS, **c_records.EXPORTS}.items():
        try:
            function = getattr(lib, name)
        except AttributeError:
            # Loaded, but another library (or a kel_c of another interface); the callers
            # name the file.
            raise LibraryNotFound(f"it is not kel_c (it has no {name})") from None
        function.restype = result
        function.argtypes = arguments
    return lib
