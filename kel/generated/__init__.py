# Generated from the interface description by tools/generate.py. Do not edit.
"""The half of the package generated from the interface description."""
