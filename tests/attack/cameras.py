"""Hostile ONVIF cameras: HTTP and XML as bytes. Each signs on as far as its attack needs and then misbehaves."""

import asyncio
import pathlib
import random
import re

from wire import HTTP_END, Link

COMMON, CONTENTS = (dict(line.split(" ", 1) for line in (pathlib.Path(__file__).parent.parent / "cases" / name).read_text().splitlines()[1:])
                    for name in ("onvif_camera.txt", "hostile_camera.txt"))
DEVICE, MEDIA = tuple(CONTENTS)[:3], tuple(CONTENTS)[3:]
STRANGER = ("127.40.0.1", 8899)  # another host, which nobody may ask for anything
ATTEMPTS = 6  # that a camera refuses: of two reads side by side, each with two nonces that were too old; a sign-on takes 4


def envelope(content):
    return COMMON["envelope"].replace("%1", content).encode()


def http(body, status="200 OK", headers=""):
    return f"HTTP/1.1 {status}\r\n{headers}Content-Length: {len(body)}\r\n\r\n".encode() + body


FAULT = envelope(COMMON["fault"].replace("%1", "NotAuthorized"))


def challenge(parameters='realm="r", nonce="n", qop="auth"', scheme="Digest"):
    return http(FAULT, "401 Unauthorized", f"WWW-Authenticate: {scheme} {parameters}\r\n")


class CameraLink(Link):
    """One connection to a camera. What all connections of a camera share is in its entry."""

    def good(self, operation, more=""):
        own = {"GetServices": self.host or self.device["ip"], "GetDeviceInformation": self.device["serialNumber"]}
        name = ("tds:" if operation in DEVICE else "trt:") + operation + "Response"
        return http(envelope(f"<{name}>{CONTENTS.get(operation, '').replace('%1', own.get(operation, more))}</{name}>"))

    async def operations(self):
        """Each request's operation, and whether it shows the account."""
        while True:
            head = (await self.reader.readuntil(HTTP_END)).lower()
            body = await self.reader.readexactly(int(re.search(rb"content-length: (\d+)", head)[1]))
            yield re.search(rb"Body.*?<(?:\w+:)?(\w+)", body, re.DOTALL)[1].decode(), b"\nauthorization:" in head or b"UsernameToken" in body


def camera(bad, at=(), ask=challenge(), host=""):
    """Does bad() in answer to the operations of `at`, to all where there are none, and before that asks for the account."""
    async def attack(link):
        link.host = host
        async for operation, shows in link.operations():
            if not shows and operation != "GetSystemDateAndTime" and ask:
                await link.send(ask)
            elif operation in (at or (operation,)):
                await bad(link, operation)
            else:
                await link.send(link.good(operation))
    attack.make_link, attack.entry = CameraLink, {"protocol": "onvif", "path": "/onvif/device_service"}
    return attack


OK, CHUNKED = b"HTTP/1.1 200 OK\r\n", b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
BEGUN = [(OK, b"X-More: more\r\n"), (b"HTTP/1.1 200 ", b"x"), (OK + b"X-More: ", b"x"), (CHUNKED, b"0"), (CHUNKED, b"1\r\n<\r\n"), (OK + b"\r\n", b"<a>"),
           (CHUNKED + b"0\r\n", b"X: y\r\n"), (b"", b"HTTP/1.1 100 Continue\r\n\r\n"), (OK + b"Content-Length: 200000\r\n\r\n", b"<a>")]


def sends(make, again=b"", pause=0, is_end=False):
    """make: from the good answer to what is sent before `again` without end, or before nothing at all."""
    async def bad(link, operation):
        await link.send(make(link.good(operation)))
        if again:
            await (link.pour(again[:1], pause) if pause else link.pour_chunks(again))
        if is_end:
            link.writer.write_eof()
    return bad


ENDLESS, DRIPS = ([sends(lambda _, start=start: start, again, pause) for start, again in BEGUN] for pause in (0, 0.3))
LENGTHS = [sends(lambda good, length=length: re.sub(rb"Content-Length: \d+", b"Content-Length: " + length, good)) for length in (
    b"99999", b"10", b"-1", b"9223372036854775808", b"18446744073709551616", b"1e3", b"0", b"9\r\nContent-Length: 99")]
STRAY = [sends(lambda good: good * 2, http(b"")), sends(lambda good: good[:-9], is_end=True)]
BOMB = "".join(f'<!ENTITY a{i} "{f"&a{i - 1};" * 10 if i else "x" * 10}">' for i in range(12))
XML = [sends(lambda _, body=body: http(body)) for body in (
    envelope("<a>" * 200_000 + "</a>" * 200_000), envelope("<a" + "".join(f' b{i}="c"' for i in range(100_000)) + "/>"),
    envelope("<a" + "".join(f' xmlns:b{i}="c{i}"' for i in range(3_000)) + "/>"), f"<!DOCTYPE a [{BOMB}]>".encode() + envelope("&a11;"),
    b'<!DOCTYPE a [<!ENTITY b SYSTEM "file:///etc/passwd">]>' + envelope("&b;"), envelope("<tds:GetHostnameResponse/>"), b"\xff\xfe\x00", b"")]
CLOCKS = [sends(lambda good, year=year: http(re.sub(rb"2026", year, good[good.index(b"<"):]))) for year in (b"9999", b"0001", b"x" * 99_999, b"-1", b"%d" % 2**64)]
MOVED = [sends(lambda _, status=status: http(b"", status, f"Location: http://{STRANGER[0]}:{STRANGER[1]}/onvif/device_service\r\n"))
         for status in ("301 Moved", "307 Temporary")]


def large(own, is_held=False):
    """own: of the maker, which a write has to give back. is_held: each is kept until the read beside it ends, and few are under way at once."""
    async def bad(link, operation):
        if is_held:
            await (link.wait_for_end() if operation == "GetProfiles" else asyncio.sleep(random.uniform(0, 8)))
        await link.send(link.good(operation, own))
    return bad


async def replay(link, operation):
    """The answer of the last time, whatever is asked now."""
    older, link.device["older"] = link.device.get("older"), link.good(operation)
    await link.send(older or link.good(operation))


def refuses(answer):
    async def bad(link, _):
        link.device["attempts"] = link.device.get("attempts", 0) + 1
        assert link.device["attempts"] <= ATTEMPTS, "an account was shown again and again"
        await link.send(answer)
    return bad


async def stranger(_):
    raise AssertionError("another host was asked")

stranger.address = STRANGER

STALE = challenge('realm="r", nonce="n", qop="auth", stale=true')
REFUSING = [camera(refuses(answer), DEVICE[1:], answer) for answer in (
    challenge(), STALE, challenge('realm="r"'), challenge('realm="r", nonce="' + "n" * 100_000 + '"'), challenge(scheme="Basic"), http(FAULT))]
REFUSING += [camera(refuses(answer), MEDIA) for answer in (challenge(), STALE, http(FAULT))]
