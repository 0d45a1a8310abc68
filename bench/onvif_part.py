"""The part "onvif" of bench.py: a video run over ONVIF cameras beside bare posts of the texts that it sends."""

import asyncio
import collections
import contextlib
import json
import math
import os
import re
import resource
import subprocess
import sys
import time

import asyncio_onvif
from figures import run

RUN_SIZE = 1000  # cameras, at most, for a run
CONNECTED_SIZE = 5000  # where all that is asked is measured
FLEET_SIZE = 4500  # of one process; each camera may need four of its open files
PLAIN_SHARE = 4.4  # so many cameras are needed for one that fits the comparison
FIRST_BIT_RATE = 1000  # kbit/s; no camera begins with so few, and each run sets one more
# What a read sends side by side, one after the other; a write begins with a read.
READS, OPTIONS, WRITES = (("GetProfiles", "GetVideoEncoderConfigurations"), ("GetVideoEncoderConfigurationOptions",),
                          ("SetVideoEncoderConfiguration",))
PROBE = ('<Envelope xmlns="http://www.w3.org/2003/05/soap-envelope"><Body><GetDeviceInformation '
         'xmlns="http://www.onvif.org/ver10/device/wsdl"/></Body></Envelope>')


class Fleet:
    """So many ONVIF cameras, in as few processes as the limit of open files allows."""

    def __init__(self, options, count, directory, env):
        self.devices, self.processes, self.dumps = [], [], []
        parts = math.ceil(count / FLEET_SIZE)
        for part in range(parts):
            inventory, dump = directory / ("part%d.json" % part), directory / ("dump%d.json" % part)
            command = [options.bin / "orda_fleet", "--onvif", math.ceil(count / parts), "--seed", part + 1, "--inventory", inventory, "--dump", dump]
            process = subprocess.Popen([str(word) for word in command], env=env, stdout=subprocess.PIPE, text=True)
            process.stdout.readline()  # "listening on …"
            for device in json.loads(inventory.read_text(encoding="utf-8"))["devices"]:
                self.devices.append(dict(device, id="%d-%s" % (part, device["id"])))
            self.processes.append(process)
            self.dumps.append(dump)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in self.processes:
            process.terminate()
            process.wait()

    def bit_rates(self):
        """Those that the cameras had in the end, by device id."""
        found = {}
        for part, _ in enumerate(self.processes):
            for name, device in json.loads(self.dumps[part].read_text(encoding="utf-8"))["devices"].items():
                found["%d-%s" % (part, name)] = {each.get("RateControl/BitrateLimit") for each in device["VideoEncoderConfiguration"].values()}
        return found


async def is_plain(device):
    """Whether a camera asks for Digest, takes a nonce more than once, tells the lengths of its answers, and keeps its
    connections open: then the bare clients need nothing else."""
    with contextlib.suppress(asyncio.IncompleteReadError, ConnectionError, TypeError):  # TypeError: a header that is not there
        connection = await asyncio_onvif.Connection.open(device["ip"], device["port"])
        with contextlib.closing(connection.writer):
            _, challenge = await connection.post(device["path"], PROBE)
            digest = asyncio_onvif.Digest(challenge, device["userName"], device["password"])
            return [(await connection.post(device["path"], PROBE, None, digest))[0] for _ in range(2)] == [200, 200]
    return False


async def plain_ones(devices, count, at_once=200):
    found = []
    for i in range(0, len(devices), at_once):
        some = devices[i:i + at_once]
        found += [device for device, plain in zip(some, await asyncio.gather(*map(is_plain, some))) if plain]
    if len(found) < count:
        sys.exit("bench.py: only %d of %d cameras fit the comparison" % (len(found), count))
    return found[:count]


class Recorder:
    """Stands before the cameras, at their addresses and a port of its own, and keeps the posts of a run by address."""

    def __init__(self, camera_port):
        self.camera_port = camera_port
        self.posts = collections.defaultdict(list)

    async def serve(self, reader, writer):
        address = writer.get_extra_info("sockname")[0]
        from_camera, to_camera = await asyncio.open_connection(address, self.camera_port)
        back = asyncio.create_task(self.pass_back(from_camera, writer))
        with contextlib.suppress(asyncio.IncompleteReadError, ConnectionError):
            while True:
                head = await reader.readuntil(b"\r\n\r\n")
                header = head.decode()
                body = await reader.readexactly(int(re.search(r"(?i)Content-Length: *(\d+)", header)[1]))
                action = re.search('action="?([^"\r\n]*)', header)
                if action and action[1].rsplit("/")[-1] in READS + OPTIONS + WRITES:
                    self.posts[address].append({"path": header.split()[1], "action": action[1], "body": body.decode()})
                to_camera.write(head + body)
        back.cancel()
        to_camera.close()
        writer.close()

    @staticmethod
    async def pass_back(from_camera, writer):
        with contextlib.suppress(ConnectionError):
            while data := await from_camera.read(1 << 16):
                writer.write(data)
        writer.close()

    @classmethod
    async def record(cls, camera_port, command_for, env):
        """The posts of a command. @param command_for: makes it from the port that it is to use"""
        self = cls(camera_port)
        server = await asyncio.start_server(self.serve, "0.0.0.0", 0, backlog=1024)
        command = command_for(server.sockets[0].getsockname()[1])
        process = await asyncio.create_subprocess_exec(*map(str, command), env=env, stdout=subprocess.DEVNULL)
        if await process.wait() != 0:
            sys.exit("bench.py: %s has failed" % command[0])
        server.close()
        return self.posts


def phases_of(posts):
    """What was sent side by side."""
    phases = []
    for post in posts:
        name = post["action"].rsplit("/")[-1]
        group = next(group for group in (READS, OPTIONS, WRITES) if name in group)
        if not phases or phases[-1][0] is not group:
            phases.append((group, []))
        phases[-1][1].append(post)
    if [group for group, _ in phases] != [READS, OPTIONS, READS, OPTIONS, WRITES]:
        sys.exit("bench.py: this is no run over a camera: %s" % [post["action"] for post in posts])
    return [some for _, some in phases]


class Comparison:
    """The same run by three clients."""

    def __init__(self, options, env, directory, devices):
        self.env, self.directory, self.devices = env, directory, devices
        self.engine, self.bare = options.bin / "engine_client", options.bin / "bare_post_client"
        self.script = asyncio_onvif.__file__
        self.bit_rate = FIRST_BIT_RATE
        self.figures = collections.defaultdict(list)

    def inventory(self, port=None):
        return write_json(self.directory / "run.json", {"devices": [dict(each, port=port or each["port"]) for each in self.devices]})

    def texts(self, posts, port=None):
        records = []
        for each in self.devices:
            phases = phases_of(posts[each["ip"]])
            records.append({"url": "http://%s:%d" % (each["ip"], port or each["port"]), "user": each["userName"],
                            "password": each["password"], "width": max(map(len, phases)), "phases": phases})
        return write_json(self.directory / "texts.json", records)

    def record(self):
        """The texts of a run; the other clients send them as often."""
        port = self.devices[0]["port"]
        record = lambda command_for: asyncio.run(Recorder.record(port, command_for, self.env))
        posts = record(lambda at: [self.engine, "tasks", self.inventory(at), self.bit_rate])
        in_order = lambda found: {address: sorted(map(str, some)) for address, some in found.items()}
        for client in (self.bare, self.script):
            if in_order(record(lambda at: [client, self.texts(posts, at)])) != in_order(posts):
                sys.exit("bench.py: %s posts something else than the run" % client)
        return posts

    def take_turns(self, repeat):
        posts = self.record()
        texts = self.texts(posts)
        for _ in range(repeat):
            self.bit_rate += 1
            for name, command in (("bare", (self.bare, texts)), ("script", (self.script, texts)),
                                  ("ours", (self.engine, "tasks", self.inventory(), self.bit_rate))):
                time.sleep(0.2 + len(self.devices) / 4000)  # the connections of the client before are gone
                self.figures[name].append(json.loads(run(command, self.env)))
        return sum(map(len, posts.values()))

    def values(self, client, key):
        return [one[key] for one in self.figures[client]]


def write_json(path, content):
    with open(os.open(path, os.O_CREAT | os.O_TRUNC | os.O_WRONLY, 0o600), "w", encoding="utf-8") as file:
        json.dump(content, file)
    return path


def measure_run(options, env, directory, table, size):
    with Fleet(options, int(size * PLAIN_SHARE) + 40, directory, env) as fleet:
        comparison = Comparison(options, env, directory, asyncio.run(plain_ones(fleet.devices, size)))
        posts = comparison.take_turns(options.repeat)
    rates = fleet.bit_rates()
    if any(str(comparison.bit_rate) not in rates[device["id"]] for device in comparison.devices):
        sys.exit("bench.py: not all cameras have the bit rate of the last run")
    ours = comparison.values("ours", "runMs")
    goal = "1.5x" if size == RUN_SIZE else None
    table.add("ONVIF video run, against bare HTTP POSTs of the same texts", size, ours, "ms", comparison.values("bare", "runMs"), goal)
    table.add("ONVIF video run, against a Python script", size, ours, "ms", comparison.values("script", "runMs"))
    table.add("ONVIF video run, processor time, against bare HTTP POSTs", size, comparison.values("ours", "cpuMs"), "ms", comparison.values("bare", "cpuMs"))
    table.add("ONVIF video run, posts of each client", size, [posts], "")
    table.add("ONVIF video run, open files after it", size, comparison.values("ours", "openFilesAfter"), "")


def measure_connected(options, env, directory, table, sizes):
    with Fleet(options, max(sizes), directory, env) as fleet:
        for size in sizes:
            inventory = write_json(directory / "connected.json", {"devices": fleet.devices[:size]})
            figures = collections.defaultdict(list)
            for _ in range(options.repeat):
                time.sleep(0.2 + size / 4000)
                for key, value in json.loads(run([options.bin / "engine_client", "connect", inventory], env)).items():
                    figures[key].append(value)
            for what, key, unit in (("started to all connected", "connectMs", "ms"), ("threads with all connected", "threads", ""),
                                    ("open files with all connected", "openFiles", ""), ("memory with all connected", "memoryKiB", "KiB")):
                table.add("ONVIF cameras: " + what, size, figures[key], unit)


def measure_onvif(options, env, directory, table):
    hard = resource.getrlimit(resource.RLIMIT_NOFILE)[1]
    resource.setrlimit(resource.RLIMIT_NOFILE, (hard, hard))  # the recorder has two for each connection
    directory = directory / "onvif"
    directory.mkdir()
    sizes = sorted({min(size, RUN_SIZE) for size in options.sizes})
    for size in sizes:
        measure_run(options, env, directory, table, size)
    if max(options.sizes) >= RUN_SIZE:
        sizes = [RUN_SIZE, CONNECTED_SIZE]
    measure_connected(options, env, directory, table, sizes)
