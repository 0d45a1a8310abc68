"""What hostile devices and clients do, and the table of attacks. A behaviour is a coroutine over one connection."""

import asyncio
import random
import socket
import struct
from dataclasses import dataclass, field

import cameras as onvif
from wire import BINARY, CHUNK, CLOSE, CONTINUATION, PING, PONG, TEXT

MEGABYTE = b"x" * (1 << 20)
JUST_BELOW = 14  # messages of 1 MB a second: not yet a flood


async def stand(link, signed_on):
    await (link.sign_on() if signed_on else link.handshake())


# Frames. What a link is to send is made by a function of the link, whose side decides on the mask.

def begin(link):
    return link.frame(TEXT, b"x", fin=False)


FLOODS = {  # bytes of one round, bytes before the first, whether what comes back is read
    "pings": (lambda link: link.frame(PING), None, True),
    "pongs": (lambda link: link.frame(PONG), None, True),
    "continuations": (lambda link: link.frame(CONTINUATION, fin=False), begin, True),
    "fragments": (lambda link: link.frame(CONTINUATION, b"x", fin=False), begin, True),
    "binaries": (lambda link: link.frame(BINARY, b"x"), None, True),
    "unread-pongs": (lambda link: link.frame(PING, b"x" * 125), None, False),
    "texts": (lambda link: link.frame(TEXT, b"\n"), None, True),
    "closes": (lambda link: link.frame(CLOSE, b"\x03\xe8"), None, True),
    "unread-answers": (lambda link: link.frame(TEXT, b'1\n{"method": "stream_get_params"}'), None, False),  # of a fleet
}


def flood(name, signed_on=True):
    make, start, reads = FLOODS[name]

    async def attack(link):
        await stand(link, signed_on)
        if start:
            await link.send(start(link))
        await link.pour_chunks(make(link), reads=reads)
    return attack


BROKEN_FRAMES = {
    "giant-claim": lambda link: link.frame(TEXT, b"x", claimed=1 << 62) + MEGABYTE * 4,
    "negative-claim": lambda link: link.frame(BINARY, b"x", claimed=(1 << 64) - 1) + MEGABYTE * 4,
    "wrong-mask": lambda link: link.frame(TEXT, b"\n{}", masked=not link.masked) * 100,
    "reserved-bits": lambda link: link.frame(TEXT, b"\n{}", reserved=7) * 100,
    "reserved-opcode": lambda link: link.frame(0xB, b"x" * 100) * 100,
    "long-ping": lambda link: link.frame(PING, b"x" * 60000) * 100,
    "bad-utf8": lambda link: link.frame(TEXT, b"\n\xff\xfe\xc0\x80\xed\xa0\x80") * 100,
    "no-id-line": lambda link: link.frame(TEXT, b"x" * 1000) * 500,
    "bad-close": lambda link: link.frame(CLOSE, b"\x00") * 100,
}


def broken(name, signed_on=True):
    """Again after each cut; where there is none the line is left open."""
    async def attack(link):
        await stand(link, signed_on)
        await link.send(BROKEN_FRAMES[name](link))
        await link.discard()
    return attack


def incomplete(signed_on=True):
    """All of a message of 1 MiB but the last byte."""
    async def attack(link):
        await stand(link, signed_on)
        for i in range(15):
            await link.send(link.frame(CONTINUATION if i else TEXT, b"x" * CHUNK, fin=False))
        await link.send(link.frame(CONTINUATION, b"x" * CHUNK)[:-1])
        await link.discard()
    return attack


async def half_closed(link):
    await link.sign_on()
    link.writer.write_eof()
    await link.wait_for_end()


async def deaf(link):
    link.writer.transport.pause_reading()
    await link.wait_for_end()


async def deaf_after_welcome(link):
    await link.sign_on()
    await deaf(link)


async def deaf_to_writes(link):
    """Answers with a setting of nearly 1 MiB, and does not read it when it is written back."""
    await link.sign_on()
    async for request_id, request in link.requests():
        await asyncio.sleep(random.uniform(0, 10))  # so many unfinished messages at once would be cut
        await link.answer(request_id, request["method"], f'{{"x": "{"x" * 900_000}"}}')
        await deaf(link)


async def deaf_to_pongs(link):
    await link.sign_on()
    pings = link.frame(PING, b"x" * 125) * 40
    await asyncio.gather(deaf(link), link.pour(pings, 0.1, reads=False))

deaf_to_writes.narrow = deaf_to_pongs.narrow = True


def reconnects(signed_on):
    async def attack(link):
        await stand(link, signed_on)
        if signed_on:
            await link.send_text('\n{"state": 5}')  # traffic after the welcome: the back-off begins anew
        reset = struct.pack("ii", 1, 0)
        link.writer.get_extra_info("socket").setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, reset)
    return attack


# Before the handshake is over

STATUS = b"HTTP/1.1 101 Switching Protocols\r\n"
HEADS = {  # bytes that begin, bytes without end, seconds between these
    "status-line": (b"HTTP/1.1 101 ", b"x", 0),
    "headers": (STATUS, b"X-More: more\r\n", 0),
    "header-line": (STATUS + b"X-More: ", b"x", 0),
    "header-drip": (STATUS + b"X-More: ", b"x", 1),
    "not-http": (b"", b"\x00", 0),
}


async def many_headers(link):
    """13,000 fields of one letter fit into the largest head."""
    await link.begin_handshake()
    await link.send(STATUS + b"".join(b"%x:\n" % i for i in range(12_000)))
    await link.wait_for_end()


def head(name):
    start, again, pause = HEADS[name]

    async def attack(link):
        await link.begin_handshake()
        await link.send(start)
        await (link.pour(again, pause) if pause else link.pour_chunks(again))
    return attack


async def silent(link):
    await link.wait_for_end()


async def silent_after_handshake(link):
    await link.handshake()
    await link.wait_for_end()


async def silent_under_tls(link):
    await link.wait_for_end()

silent_under_tls.tls = True


async def never_accepts(_):
    raise AssertionError("it listens, and that is all")

never_accepts.accepts = False


# Answers and notices

def nested(depth, size, element="0"):
    return "[" * depth + ",".join([element] * (size // (len(element) + 1))) + "]" * depth


def repeated_keys(size):
    return ",".join(['"k":{"":0}'] * (size // 11))


SHAPES = {"network": '{"eth": {"x": %s}}', "video": '{"streams": [{"streamid": 0, "x": %s}]}'}


def answers(value, family="audio"):
    """Answers every request with a setting that the client will write back. value: JSON, made when it is needed."""
    async def attack(link):
        result = SHAPES.get(family, '{"x": %s}') % value()
        await link.sign_on()
        async for request_id, request in link.requests():
            await link.answer(request_id, request["method"], result)
    return attack


async def pour_texts(link, texts, per_second):
    """The same texts again and again, at most so many a second."""
    frames = b"".join(link.frame(TEXT, text.encode()) for text in texts)
    await link.pour(frames, len(texts) / per_second)


def foreign(result):
    """Answers of a method that was not asked for, under the id of the first request, just below a flood."""
    async def attack(link):
        await link.sign_on()
        async for request_id, _ in link.requests():
            await pour_texts(link, [f'{request_id}\n{{"method": "none", "result": {result()}}}'], JUST_BELOW)
    return attack


def texts(make, per_second):
    async def attack(link):
        await link.sign_on()
        await pour_texts(link, make(), per_second)
    return attack


async def repeated_hello(link):
    await link.sign_on(ballast=repeated_keys(900_000) + ",")
    await link.send_text('\n{"state": 1}')


async def unasked(link):
    """Answers to nothing, to what is not sent yet, twice."""
    await link.sign_on()
    await link.answer("{00000000-0000-0000-0000-000000000000}", "ai_get_param", "{}")
    async for request_id, request in link.requests():
        for method in ("ao_set_param", "ai_set_param", request["method"], request["method"]):
            await link.answer(request_id, method, "{}")


CHANGES = ['\n{"state": 5}', '\n{"state": 1}']


async def flapping_cloud(link):
    """Takes the write of the cloud settings, and from then on only changes its state."""
    await link.sign_on()
    async for request_id, request in link.requests():
        if "_set_" in request["method"]:
            await pour_texts(link, CHANGES, 800)
        await link.answer(request_id, request["method"], '{"qbcloud_en": false}')


known_ids = set()  # what a traitor among the honest could tell


async def honest(link):
    """A slow device that behaves; whoever knows its requests' ids has time to answer for it."""
    await link.sign_on()
    async for request_id, request in link.requests():
        known_ids.add(request_id)
        await asyncio.sleep(0.3)
        await link.answer(request_id, request["method"], '{"bEnable": true, "aiGain": 50, "aoGain": 50}')

honest.healthy = True


async def impostor(link):
    await link.sign_on()
    while True:
        for request_id in list(known_ids):
            for method in ("ai_get_param", "ai_set_param", "ao_get_param", "ao_set_param"):
                await link.answer(request_id, method, "{}", code=-7)
        await asyncio.sleep(0.1)


# The table

@dataclass
class Attack:
    name: str
    what: str
    earlier: str = "—"    # before there were limits: peak of memory and what became of the healthy devices
    hostile: list = field(default_factory=list)  # behaviours
    each: int = 1         # how many devices, or clients, show each of them
    short: float = None   # seconds that the healthy devices take in ./dev test; None: not run there
    long: float = None    # the same in ./dev attack
    margin: float = 8     # seconds that the client may take beyond that
    ticked: str = "healthy"  # or "all", where the hostile ones get requests and the run may wait for their time-outs
    family: str = "audio"
    fleet: tuple = ()        # more options of orda_fleet
    program: str = "orda_client"  # or "orda_batch"
    on_fleet: bool = False   # hostile clients of orda_fleet instead of hostile devices of orda_client


def rows():
    signed_on = {name: flood(name) for name in FLOODS if name != "unread-answers"}
    unsigned = {name: flood(name, signed_on=False) for name in signed_on}
    heads = {name: head(name) for name in HEADS}
    all_broken = [broken(name, signed) for name in BROKEN_FRAMES for signed in (True, False)]

    yield Attack("nothing", "no attack, to compare with", short=0, long=0)
    yield Attack("frames", "floods of small frames of every kind", "0 of 14", [*signed_on.values()], 2, short=3)
    yield Attack("frames-unsigned", "the same before sign-on", "0 of 14", [*unsigned.values()], 2, short=3)
    for name, earlier in (("pings", "8.4 GB in 45 s, 0 of 14"), ("pongs", "0 of 14"), ("continuations", "0 of 14"),
                          ("fragments", "14 of 14"), ("binaries", "0 of 14"), ("unread-pongs", "over 2 GB in 13 s"),
                          ("texts", "14 of 14"), ("closes", "14 of 14")):
        yield Attack(f"{name}-flood", "as fast as the line takes them", earlier, [signed_on[name]], 10, long=45, margin=20,
                     ticked="all")
    for name, earlier in (("pings", "2.7 GB"), ("pongs", "14 of 14"), ("continuations", "14 of 14"),
                          ("fragments", "14 of 14"), ("binaries", "0 of 14"), ("unread-pongs", "over 2 GB in 11 s"),
                          ("texts", "14 of 14"), ("closes", "14 of 14")):
        yield Attack(f"{name}-unsigned", "the same before sign-on", earlier, [unsigned[name]], 10, long=20, margin=20)
    for family in ("audio", "video", "image", "network", "osd"):
        yield Attack(f"deep-{family}", "400 KB, arrays 1,000 deep, written back indented", "client died",
                     [answers(lambda: nested(1000, 400_000), family)], 3, short=0 if family in ("audio", "video") else None,
                     long=0, ticked="all", family=family)
    yield Attack("wide", "1 MB, arrays 30 deep: 60 MB when indented", "499 MB",
                 [answers(lambda: nested(30, 1_000_000))], 20, short=0, long=0, ticked="all")
    yield Attack("swelling", "81 KB in 28 arrays, numbers, escapes: too large to be written back", "time-out of 15 s",
                 [answers(lambda: nested(28, 81_000)), answers(lambda: nested(1, 400_000, "1e18")),
                  answers(lambda: '"' + "\x01" * 400_000 + '"')], 2, short=0, long=0, ticked="all")
    yield Attack("repeated-answers", "an object key 90,000 times, in answers", "over 2 GB in 11 s",
                 [foreign(lambda: f"{{{repeated_keys(1_000_000)}}}")], 5, short=0, long=20, margin=20, ticked="all")
    yield Attack("repeated-notices", "the same in notices, hello and welcome", "3.0 GB in 20 s",
                 [texts(lambda: [f"\n{{{repeated_keys(1_000_000)}}}"], JUST_BELOW), repeated_hello], 5, short=3, long=20)
    yield Attack("foreign-method", "1 MB of a foreign method under one's own id, again and again", "9.1 GB, no end",
                 [foreign(lambda: '["' + "x" * 900_000 + '"]')], 20, long=40, margin=20, ticked="all")
    yield Attack("incomplete", "messages of 1 MiB without their last byte", "776 MB", [incomplete()], 300, short=3, long=20)
    yield Attack("impostor", "answers for others, whose ids it knows", "14 of 17", [impostor, honest], 3, short=0, long=0)
    yield Attack("unasked", "answers to nothing, too early, twice", "14 of 14", [unasked], 10, short=0, long=0, ticked="all")
    yield Attack("broken-frames", "lengths of 2^62, masks, reserved bits, bad UTF-8; half-closed; deaf", "14 of 14",
                 [*all_broken, half_closed, deaf_after_welcome], 2, short=2, long=20)
    yield Attack("reconnects", "reset as soon as the line stands", "14 of 14", [reconnects(True), reconnects(False)], 150,
                 short=2, long=20)
    yield Attack("flapping", "changes of state, without pause or 800 a second", "14 of 14",
                 [texts(lambda: CHANGES, 800), texts(lambda: CHANGES * 100, 100_000)], 5, short=2, long=20)
    yield Attack("flapping-cloud", "the same instead of the answer to a cloud write", "28,071 requests in 60 s, no end",
                 [flapping_cloud], 3, long=0, margin=75, ticked="all", family="platform")
    yield Attack("deaf-writes", "a setting of 1 MB in each of 300, and nobody reads it when it is written back", "330 MB",
                 [deaf_to_writes], 300, long=0, margin=40, ticked="all")
    yield Attack("deaf-pongs", "400 pings a second from each of 400, which read nothing", "568 MB", [deaf_to_pongs], 400,
                 long=28)
    yield Attack("flapping-crowd", "30 changes of state a second from each of 300", "14 of 14",
                 [texts(lambda: CHANGES, 30)], 300, long=20)
    yield Attack("crowd", "900 useless answers a second from each of 60", "14 of 14",
                 [texts(lambda: ["none\n{}"] * 45, 900)], 60, long=20)
    yield Attack("heads", "status lines, headers without end; drips; no HTTP", "1.3 GB in 9 s", [*heads.values()], 2, short=2,
                 long=20)
    for name, earlier in (("status-line", "1.1 GB in 14 s"), ("headers", "1.4 GB in 14 s"),
                          ("header-line", "over 2 GB in 9 s"), ("not-http", "over 2 GB in 6 s")):
        yield Attack(f"endless-{name}", "without end", earlier, [heads[name]], 10, long=14)
    yield Attack("many-headers", "12,000 header fields from each of 600, and then silence", "477 MB", [many_headers], 600,
                 long=20, margin=40)
    yield Attack("silent-96", "accept and say nothing, first in the list", "0 of 14", [silent], 96, short=0, margin=12)
    yield Attack("silent-320", "accept and say nothing, first in the list", "0 of 10 after 60 s", [silent], 320, long=0,
                 margin=20)
    yield Attack("silent-kinds", "silent before and after the handshake, under TLS, never accepting", "0 of 14",
                 [silent, silent_after_handshake, silent_under_tls, never_accepts], 16, long=0, margin=20)
    yield Attack("fleet-frames", "clients with floods of small frames", "557 MB, 0 of 12",
                 [*signed_on.values()], 2, short=2, long=20, on_fleet=True)
    yield Attack("fleet-unsigned", "the same before sign-on; endless heads; unread answers", "2.9 GB in 10 s, 0 of 12",
                 [*unsigned.values(), *heads.values(), broken("giant-claim", False), flood("unread-answers"), silent], 2,
                 short=2, long=20, on_fleet=True)
    yield Attack("fleet-incomplete", "400 clients, each with a message of 1 MiB without its last byte", "1.1 GB",
                 [incomplete(signed_on=False)], 400, long=14, on_fleet=True)


def camera_rows():
    """Of ONVIF cameras; whether orda_batch is attacked, how many, and seconds in ./dev test."""
    def both(behaviours):
        return [onvif.camera(bad, at) for bad in behaviours for at in ((), onvif.MEDIA)]

    for name, what, batch, each, short, hostile in (
            ("endless", "heads, lines, chunks, bodies without end", 0, 2, 0, both(onvif.ENDLESS)),
            ("drips", "of these a byte each 0.3 s", 1, 4, None, both(onvif.DRIPS)),
            ("lengths", "lengths that lie: longer, shorter, negative, 2^63, two of them", 0, 3, None, both(onvif.LENGTHS)),
            ("large", "4 MiB in answer to each read", 0, 120, None, [onvif.camera(onvif.large("x" * 4_190_000), onvif.MEDIA)]),
            ("held", "4 MiB, held until another read ends", 1, 150, None, [onvif.camera(onvif.large("x" * 4_190_000, True), onvif.MEDIA)]),
            ("held-wide", "45,000 elements, likewise", 1, 150, None, [onvif.camera(onvif.large("<a/>" * 45_000, True), onvif.MEDIA)]),
            ("xml", "XML too deep or wide, DTD, entities; other operations", 1, 3, 0, both(onvif.XML)),
            ("pushed", "answers nobody asked for; half-closed; older answers", 0, 3, 0, both((*onvif.STRAY, onvif.replay))),
            ("moved", "sent to another host, which nobody asks", 1, 1, 0,
             [*both(onvif.MOVED), onvif.camera(None, ("",), host="%s:%d" % onvif.STRANGER), onvif.stranger]),
            ("accounts", "challenges of 100 kB, without nonce, stale for ever; all refused: few attempts", 0, 3, 0, onvif.REFUSING),
            ("clocks", "years 1 and 9999, no numbers", 0, 3, None, [onvif.camera(bad, onvif.DEVICE[:1], onvif.http(onvif.FAULT)) for bad in onvif.CLOCKS])):
        yield Attack(f"camera-{name}", "ONVIF: " + what, "—", hostile, each, short, 0, 35, "all", "audio", ("--onvif", "10"),
                     "orda_batch" if batch else "orda_client")


ATTACKS = {attack.name: attack for attack in (*rows(), *camera_rows())}
