#!/usr/bin/env python3
"""One command to a running machine: qmp.py SOCKET COMMAND [ARGUMENTS as JSON] [EVENT to wait for]"""
import json
import socket
import sys


def main(path, command, arguments="{}", event=None):
    with socket.socket(socket.AF_UNIX) as connection:
        connection.settimeout(60)
        connection.connect(path)
        stream = connection.makefile("rw")
        json.loads(stream.readline())  # the greeting

        def send(name, given):
            stream.write(json.dumps({"execute": name, "arguments": given}) + "\n")
            stream.flush()

        seen = set()

        def answer():
            while True:
                line = json.loads(stream.readline())
                if "event" not in line:
                    return line
                seen.add(line["event"])

        send("qmp_capabilities", {})
        answer()
        send(command, json.loads(arguments))
        result = answer()
        if "error" in result:
            print(f"{command}: {result['error']['desc']}", file=sys.stderr)
            return 1
        while event and event not in seen:
            seen.add(json.loads(stream.readline()).get("event"))
    if result["return"] not in ({}, ""):
        print(json.dumps(result["return"]) if not isinstance(result["return"], str) else result["return"], end="")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
