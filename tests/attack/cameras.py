"""Hostile ONVIF cameras: HTTP and XML as bytes. Each signs on as far as its attack needs and then misbehaves."""

import asyncio
import random
import re

from wire import HTTP_END, Link

OK = b"HTTP/1.1 200 OK\r\n"
MEDIA = ("GetProfiles", "GetAudioEncoderConfigurations", "GetAudioEncoderConfigurationOptions", "GetAudioOutputConfigurations",
         "GetAudioOutputConfigurationOptions")
SIGN_ON_ATTEMPTS = 4  # that a camera refuses: each way of showing the account once, and two nonces that were too old
READ_ATTEMPTS = 6     # likewise, of two reads side by side that get as many nonces each
LARGEST = (4 << 20) - 4096  # of an answer's body, just below the limit
SPACES = "".join(f' xmlns:{prefix}="http://www.{name}"' for prefix, name in (
    ("e", "w3.org/2003/05/soap-envelope"), ("t", "onvif.org/ver10/schema"), ("d", "onvif.org/ver10/device/wsdl"),
    ("m", "onvif.org/ver10/media/wsdl"), ("r", "onvif.org/ver10/error")))
CLOCK = ("<d:SystemDateAndTime><t:UTCDateTime><t:Time><t:Hour>1</t:Hour><t:Minute>2</t:Minute><t:Second>3</t:Second></t:Time>"
         "<t:Date><t:Year>{}</t:Year><t:Month>{}</t:Month><t:Day>{}</t:Day></t:Date></t:UTCDateTime></d:SystemDateAndTime>")
AUDIO = ('<{0} token="a"><t:Name>a</t:Name><t:UseCount>1</t:UseCount><t:Encoding>G711</t:Encoding><t:Bitrate>64</t:Bitrate>'
         "<t:SampleRate>16</t:SampleRate>{1}</{0}>")
CONTENTS = {
    "GetSystemDateAndTime": CLOCK.format(2026, 11, 1),
    "GetServices": "<d:Service><d:Namespace>http://www.onvif.org/ver10/media/wsdl</d:Namespace><d:XAddr>http://{host}/media</d:XAddr></d:Service>",
    "GetDeviceInformation": "<d:SerialNumber>{serial}</d:SerialNumber>",
    "GetProfiles": '<m:Profiles token="p">' + AUDIO.format("t:AudioEncoderConfiguration", "") + "{more}</m:Profiles>",
    "GetAudioEncoderConfigurations": AUDIO.format("m:Configurations", "{more}"),
    "GetAudioEncoderConfigurationOptions": "<m:Options><t:Options><t:Encoding>G711</t:Encoding><t:SampleRateList><t:Items>8</t:Items>"
                                           "</t:SampleRateList></t:Options>{more}</m:Options>",
    "GetAudioOutputConfigurations": '<m:Configurations token="o"><t:OutputLevel>9</t:OutputLevel>{more}</m:Configurations>',
    "GetAudioOutputConfigurationOptions": "<m:Options><t:OutputLevelRange><t:Min>0</t:Min><t:Max>99</t:Max></t:OutputLevelRange>{more}</m:Options>",
}
SIGN_ON = ("GetServices", "GetDeviceInformation")


def envelope(content):
    return f"<e:Envelope{SPACES}><e:Body>{content}</e:Body></e:Envelope>".encode()


def http(body, status="200 OK", headers=""):
    return f"HTTP/1.1 {status}\r\n{headers}Content-Length: {len(body)}\r\n\r\n".encode() + body


FAULT = envelope("<e:Fault><e:Code><e:Value>e:Sender</e:Value><e:Subcode><e:Value>r:NotAuthorized</e:Value></e:Subcode></e:Code></e:Fault>")


def challenge(parameters='realm="r", nonce="n", qop="auth"'):
    return http(FAULT, "401 Unauthorized", f"WWW-Authenticate: Digest {parameters}\r\n")


class CameraLink(Link):
    """One connection to a camera. What all connections of a camera share is in its entry."""

    host = None  # what the camera says of its own address

    def good(self, operation, more=""):
        prefix = "d" if operation in ("GetSystemDateAndTime", *SIGN_ON) else "m"
        content = CONTENTS.get(operation, "").format(host=self.host or self.device["ip"], serial=self.device["serialNumber"], more=more)
        return http(envelope(f"<{prefix}:{operation}Response>{content}</{prefix}:{operation}Response>"))

    async def operations(self):
        """Each request's operation, and whether it shows the account."""
        while True:
            head = (await self.reader.readuntil(HTTP_END)).lower()
            body = await self.reader.readexactly(int(re.search(rb"content-length: (\d+)", head)[1]))
            yield re.search(rb"Body.*?<(?:\w+:)?(\w+)", body, re.DOTALL)[1].decode(), b"\nauthorization:" in head or b"UsernameToken" in body

    async def refuse(self, answer, most):
        """An account that was shown; of all this camera's connections together."""
        self.device["attempts"] = self.device.get("attempts", 0) + 1
        assert self.device["attempts"] <= most, "an account was shown again and again"
        await self.send(answer)


def camera(bad, at=(), ask=challenge(), host=None):
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
    attack.make_link = CameraLink
    attack.entry = {"protocol": "onvif", "path": "/onvif/device_service"}
    return attack


# Answers that never end: what begins, what follows for ever, seconds between two bytes of it

ENDLESS = {
    "head": (OK, b"X-More: more\r\n"), "status line": (b"HTTP/1.1 200 ", b"x"), "header line": (OK + b"X-More: ", b"x"),
    "chunk size": (OK + b"Transfer-Encoding: chunked\r\n\r\n", b"0"), "chunks": (OK + b"Transfer-Encoding: chunked\r\n\r\n", b"1\r\n<\r\n"),
    "trailer": (OK + b"Transfer-Encoding: chunked\r\n\r\n0\r\n", b"X: y\r\n"), "interim heads": (b"", b"HTTP/1.1 100 Continue\r\n\r\n"),
    "body": (OK + b"\r\n", b"<a>"), "body of a length": (OK + b"Content-Length: 200000\r\n\r\n", b"<a>"), "no HTTP": (b"", b"\x00"),
}


def endless(name, pause=0):
    start, again = ENDLESS[name]

    async def bad(link, _):
        await link.send(start)
        await (link.pour(again[:1], pause) if pause else link.pour_chunks(again))
    return bad


def once(make):
    """make: from the good answer to the bad one, or from nothing. The connection stays open."""
    async def bad(link, operation):
        await link.send(make(link.good(operation)))
    return bad


def told(length):
    return once(lambda good: re.sub(rb"Content-Length: \d+", b"Content-Length: " + length, good))


LENGTHS = [told(length) for length in (b"99999", b"10", b"-1", b"9223372036854775808", b"18446744073709551616", b"1e3", b"0", b"9\r\nContent-Length: 99")]
BOMB = "".join(f'<!ENTITY a{i} "{f"&a{i - 1};" * 10 if i else "x" * 10}">' for i in range(12))
XML = [once(lambda good, body=body: http(body())) for body in (
    lambda: envelope("<a>" * 200_000 + "</a>" * 200_000),
    lambda: envelope("<a" + "".join(f' b{i}="c"' for i in range(100_000)) + "/>"),
    lambda: envelope("<a" + "".join(f' xmlns:b{i}="c{i}"' for i in range(3_000)) + "/>"),
    lambda: f"<!DOCTYPE a [{BOMB}]>".encode() + envelope("&a11;"),
    lambda: b'<!DOCTYPE a [<!ENTITY b SYSTEM "file:///etc/passwd">]>' + envelope("&b;"),
    lambda: envelope("<d:GetHostnameResponse/>"), lambda: envelope("<a/>" * 40_000), lambda: b"\xff\xfe\x00", lambda: b"")]


OWN = {"long": "x" * LARGEST, "wide": "<a/>" * 45_000,  # what makers add, and a write has to give back
       "dense": ("<a" + "".join(f' b{i}=""' for i in range(250)) + "/>") * 190}


def large(name, is_held=False):
    """is_held: one after the other, so that few are under way at once, each kept until the read beside it ends."""
    async def bad(link, operation):
        if is_held and operation == "GetProfiles":
            await link.wait_for_end()
        await asyncio.sleep(random.uniform(0, 8) if is_held else 0)
        await link.send(link.good(operation, more=OWN[name]))
    return bad


async def half_closed(link, operation):
    await link.send(link.good(operation)[:-9])
    link.writer.write_eof()
    await link.wait_for_end()


async def pushed(link, operation):
    await link.send(link.good(operation) * 2)
    await link.pour_chunks(link.good(operation))


async def deaf(link, operation):
    await link.send(link.good(operation))
    link.writer.transport.pause_reading()
    await link.wait_for_end()


async def replay(link, operation):
    """The answer of the last time, whatever is asked now."""
    older, link.device["older"] = link.device.get("older", b""), link.good(operation)
    await link.send(older or link.good(operation))


def clock(*date):
    return once(lambda _: http(envelope(f"<d:GetSystemDateAndTimeResponse>{CLOCK.format(*date)}</d:GetSystemDateAndTimeResponse>")))


def refuses(answer, most=SIGN_ON_ATTEMPTS):
    async def bad(link, _):
        await link.refuse(answer, most)
    return bad


# Another host, which nobody may ask for anything

STRANGER = ("127.40.0.1", 8899)


async def stranger(_):
    raise AssertionError("another host was asked")

stranger.address = STRANGER


def moved(status):
    return once(lambda _: http(b"", status, "Location: http://{}:{}/onvif/device_service\r\n".format(*STRANGER)))


STALE = challenge('realm="r", nonce="n", qop="auth", stale=true')
ASKING = [camera(refuses(answer), SIGN_ON, ask=answer) for answer in (
    challenge(), STALE, challenge('realm="r", qop="auth"'), challenge('realm="r", nonce="' + "n" * 100_000 + '"'),
    challenge(", ".join(f'a{i}="b"' for i in range(600))), http(FAULT), http(FAULT, "403 Forbidden"), http(b"", "401 Unauthorized", "WWW-Authenticate: Basic\r\n"))]
ASKING += [camera(refuses(answer, READ_ATTEMPTS), MEDIA) for answer in (challenge(), STALE, http(FAULT))]
