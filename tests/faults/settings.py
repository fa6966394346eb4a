"""The settings of a machine folder."""

from pathlib import Path


def settings_of(machine):
    """All values in the registry and in cset.ini, by section and name."""
    values = {}
    for file in filter(Path.exists, (machine / "registry.reg", machine / "c/Kalyxo/cset.ini")):
        section = ""
        for line in file.read_text(encoding="cp1253", errors="replace").splitlines():
            if line.startswith("["):
                section = line
            elif "=" in line:
                key, _, value = line.partition("=")
                values[section + key] = value
    return values


def settings_lost(before, after, machine):
    """What is wrong with the settings of a machine on which a use ended that could change them."""
    found = settings_of(machine)
    yield from (f"the setting {name} is lost" for name in before if name not in found)
    yield from (f"the setting {name} is {value}" for name, value in found.items()
                if value not in (before.get(name), after.get(name)))
