"""Runtime support of the generated stream decoders.

A record decoded from a result is made by a function that takes its fields' values by
position, in the order of the record's fields, and sets them on a new instance. The
dataclass's own __init__ takes them by keyword, and matching a dozen keywords costs
several times what setting the fields does: for a large result that is most of the
decoding. Such a function makes exactly what __init__ makes, given every field."""

from __future__ import annotations

import dataclasses
import enum
from typing import Any, Callable, TypeVar

E = TypeVar("E", bound=enum.Enum)


def positional(cls: type) -> Callable[..., Any]:
    """A function make(value, ...) that returns a `cls` whose fields, in order, hold the
    values given; every field must be given."""
    names = [f.name for f in dataclasses.fields(cls)]
    source = (f"def make_{cls.__name__}({', '.join(names)}):\n"
              "    record = _new(_cls)\n"
              + "".join(f"    record.{name} = {name}\n" for name in names)
              + "    return record\n")
    scope: dict[str, Any] = {"_new": object.__new__, "_cls": cls}
    exec(compile(source, f"<kel record {cls.__name__}>", "exec"), scope)  # noqa: S102
    make: Callable[..., Any] = scope[f"make_{cls.__name__}"]
    return make


def member_of(cls: type[E]) -> Callable[[int], E]:
    """A function of(value) that returns cls(value). An enum's call goes through its
    metaclass and costs several times a dictionary lookup; the members (and, for a flag,
    every combination made so far) are in the enum's own value map, so a value met before
    is one lookup, and only a new one takes the call."""
    members: dict[Any, E] = cls._value2member_map_  # type: ignore[assignment]
    get = members.get

    def of(value: int) -> E:
        member = get(value)
        return member if member is not None else cls(value)

    return of
