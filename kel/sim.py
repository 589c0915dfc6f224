"""Helpers for the simulated vehicle of the reference engine (kel_cpp).

key_for is the simulated units' seed/key algorithm, for engine.unlock_security(key=...):

    seed32 = the 4 seed bytes, most significant first
    key32  = rotate_left_32(seed32 XOR keyMask, 3)
    key    = key32 as 4 bytes, most significant first

The key mask belongs to the unit's security level in the vehicle description. key_for
knows the masks of the bundled default vehicle (its ECM: level 1 and 2); key_with_masks
makes the same algorithm for the masks of another description."""

from __future__ import annotations

from typing import Callable, Mapping

# The ECM of the bundled default vehicle (reference_engine/vehicles/default.json).
DEFAULT_MASKS: Mapping[int, int] = {1: 0x5A3C96E1, 2: 0xC3A5179E}


def key_with_masks(masks: Mapping[int, int]) -> Callable[[bytes, int], bytes]:
    """The simulated units' algorithm for a description whose levels have these key masks."""

    def key(seed: bytes, level: int) -> bytes:
        if len(seed) != 4:
            raise ValueError(f"a seed of the simulated vehicle has 4 bytes, not {len(seed)}")
        if level not in masks:
            raise ValueError(f"no key mask for security level {level} (known: {sorted(masks)})")
        value = int.from_bytes(seed, "big") ^ masks[level]
        return (((value << 3) | (value >> 29)) & 0xFFFFFFFF).to_bytes(4, "big")

    return key


key_for = key_with_masks(DEFAULT_MASKS)
key_for.__doc__ = "The key for a seed of the default vehicle's ECM at a security level (1 or 2)."
