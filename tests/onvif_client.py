#!/usr/bin/env python3
"""A client of somebody else's reads the fleet's ONVIF cameras and sets something: onvif_client.py BIN.
ORDA_ONVIF_CLIENT names the directory into which the npm package "onvif" was installed."""
import contextlib
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

BIN = pathlib.Path(sys.argv[1]).resolve()
CLIENT = os.environ.get("ORDA_ONVIF_CLIENT")
SKIPPED = 77
CAMERAS = 24


def skip(reason):
    print("skipped:", reason)
    sys.exit(SKIPPED)


if not CLIENT:
    skip("ORDA_ONVIF_CLIENT is not set")
if not shutil.which("node"):
    skip("node is missing")

with contextlib.ExitStack() as stack:
    home = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory()))
    fleet = subprocess.Popen([str(BIN / "orda_fleet"), "--onvif", str(CAMERAS), "--inventory", "site.json", "--dump", "dump.json"], cwd=home,
                             stdout=subprocess.PIPE, text=True)
    stack.callback(fleet.wait)
    fleet.stdout.readline()
    devices = {device["id"]: device for device in json.loads((home / "site.json").read_text())["devices"]}
    script = pathlib.Path(__file__).parent / "support" / "independent_client.js"
    done = subprocess.run(["node", str(script), CLIENT, str(home / "site.json")], stdout=subprocess.PIPE, text=True, timeout=120, check=True)
    fleet.terminate()
    fleet.wait()
    held = json.loads((home / "dump.json").read_text())["devices"]

faults = []
written = 0
for line in done.stdout.splitlines():
    seen = json.loads(line)
    device = devices.pop(seen["id"])
    encoders = held[seen["id"]]["VideoEncoderConfiguration"]
    if "error" in seen:
        faults.append(f"{seen['id']}: {seen['error']}")
    elif device["serialNumber"] not in ("", seen["serial"]) or not seen["rates"] or len(seen["rates"]) > len(encoders):
        faults.append(f"{seen['id']}: {seen}, and not {encoders}")
    elif seen["isMedia2"]:
        written += 1
        if encoders[seen["token"]]["RateControl/BitrateLimit"] != "1500":
            faults.append(f"{seen['id']}: {encoders[seen['token']]}")
print(f"{CAMERAS - len(devices)} cameras, {written} written to", *faults, sep="\n")
sys.exit(1 if faults or devices or written < CAMERAS / 4 else 0)
