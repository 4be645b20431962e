"""What the system tells of a running program."""

import pathlib
import time


def folder_of(program):
    return pathlib.Path(f"/proc/{program.process.pid}")


def status_numbers(program, name):
    tasks = folder_of(program) / "task"
    lines = "".join((task / "status").read_text() for task in tasks.iterdir()).splitlines()
    return [int(line.split()[1]) for line in lines if line.startswith(name)]


def wake_ups(program):
    return sum(status_numbers(program, "voluntary_ctxt_switches"))


def settled(program):
    before = wake_ups(program)
    time.sleep(1)
    return wake_ups(program) == before


def network_connections(program):
    """How many sockets of the internet's it has open."""
    folder = folder_of(program)
    tables = [folder / "net" / name for name in ("tcp", "tcp6", "udp", "udp6")]
    sockets = {line.split()[9] for table in tables if table.exists()
               for line in table.read_text().splitlines()[1:]}
    opened = (str(file.readlink()) for file in (folder / "fd").iterdir())
    return sum(name.removeprefix("socket:[").rstrip("]") in sockets for name in opened)
