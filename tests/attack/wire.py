"""WebSocket as bytes, for both sides of docs/device-protocol.md, so that everything in it can be done wrong."""

import asyncio
import base64
import hashlib
import hmac
import json
import os
import socket
import struct

CONTINUATION, TEXT, BINARY, CLOSE, PING, PONG = 0, 1, 2, 8, 9, 10
HTTP_END = b"\r\n\r\n"
CHUNK = 64 * 1024  # of one write, so that Python is not what limits a flood
ACCEPT_SUFFIX = "258EAFA5-E914-47DA-95CA-C5AB0DC85B11"


def frame(opcode, payload=b"", fin=True, masked=False, reserved=0, claimed=None):
    """One frame. claimed: a length that is not the payload's. The mask is zero, which leaves the payload as it is."""
    length = len(payload) if claimed is None else claimed
    mask_bit = 0x80 if masked else 0
    head = bytes([(0x80 if fin else 0) | reserved << 4 | opcode])
    if length < 126:
        head += bytes([mask_bit | length])
    elif length < 1 << 16:
        head += struct.pack(">BH", mask_bit | 126, length)
    else:
        head += struct.pack(">BQ", mask_bit | 127, length)
    return head + (bytes(4) if masked else b"") + payload


def nonce():
    return base64.b64encode(os.urandom(16)).decode()


def proof(side, password, device_nonce, client_nonce):
    text = f"{side}:{device_nonce}:{client_nonce}"
    return base64.b64encode(hmac.new(password.encode(), text.encode(), hashlib.sha256).digest()).decode()


class Link:
    """One connection; what both sides do alike. `device` is the inventory's entry."""

    masked = False

    def __init__(self, device, reader, writer):
        self.device, self.reader, self.writer = device, reader, writer

    def frame(self, opcode, payload=b"", **wrong):
        return frame(opcode, payload, masked=wrong.pop("masked", self.masked), **wrong)

    async def send(self, data):
        self.writer.write(data)
        await self.writer.drain()

    async def send_text(self, text):
        await self.send(self.frame(TEXT, text.encode()))

    async def read_frame(self):
        """Opcode and payload; this side never gets fragments from a peer that behaves."""
        first, second = await self.reader.readexactly(2)
        length = second & 0x7F
        if length > 125:
            size = 2 if length == 126 else 8
            length = int.from_bytes(await self.reader.readexactly(size), "big")
        mask = await self.reader.readexactly(4) if second & 0x80 else bytes(4)
        payload = await self.reader.readexactly(length)
        key = int.from_bytes((mask * (length // 4 + 1))[:length], "big")
        return first & 0x0F, (int.from_bytes(payload, "big") ^ key).to_bytes(length, "big")

    async def read_text(self):
        while True:
            opcode, payload = await self.read_frame()
            if opcode == TEXT:
                return payload.decode()
            if opcode == PING:
                await self.send(self.frame(PONG, payload))
            elif opcode == CLOSE:
                raise ConnectionResetError

    async def answer(self, request_id, method, result, code=0):
        await self.send_text(f'{request_id}\n{{"method": "{method}", "error": {{"errorcode": {code}}}, "result": {result}}}')

    async def requests(self):
        while True:
            request_id, _, text = (await self.read_text()).partition("\n")
            yield request_id, json.loads(text)

    async def discard(self):
        while await self.reader.read(CHUNK):
            pass

    async def pour(self, data, pause=0, reads=True):
        """The same bytes without end; what comes back is read, or left to fill the line."""
        async def write():
            while True:
                await self.send(data)
                await asyncio.sleep(pause)  # 0: the others' turn, for drain() comes back at once while the peer keeps up
        await asyncio.gather(write(), *([self.discard()] if reads else []))

    async def pour_chunks(self, data, **more):
        await self.pour(data * (CHUNK // len(data)), **more)

    async def wait_for_end(self):
        await asyncio.Event().wait()


class DeviceLink(Link):
    """The device's side."""

    async def begin_handshake(self):
        """The answer that is due; what goes out next is its head."""
        head = await self.reader.readuntil(HTTP_END)
        lines = dict(line.partition(": ")[::2] for line in head.decode().split("\r\n"))
        key = {name.lower(): value for name, value in lines.items()}["sec-websocket-key"]
        return base64.b64encode(hashlib.sha1((key + ACCEPT_SUFFIX).encode()).digest()).decode()

    async def handshake(self):
        accept = await self.begin_handshake()
        await self.send(("HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                         f"Sec-WebSocket-Accept: {accept}\r\n\r\n").encode())

    async def sign_on(self, ballast=""):
        """ballast: members that go before the right ones in hello and welcome."""
        await self.handshake()
        own = nonce()
        await self.send_text(f'{{{ballast}"hello": {{"serial": "{self.device["serialNumber"]}", "nonce": "{own}"}}}}')
        auth = json.loads(await self.read_text())["auth"]
        right = proof("device", self.device["password"], own, auth["nonce"])
        await self.send_text(f'{{{ballast}"welcome": {{"state": 1, "proof": "{right}"}}}}')


class ClientLink(Link):
    """The client's side, towards a fleet."""

    masked = True

    async def begin_handshake(self):
        await self.send((f"GET {self.device['path']} HTTP/1.1\r\nHost: {self.device['ip']}\r\nUpgrade: websocket\r\n"
                f"Connection: Upgrade\r\nSec-WebSocket-Version: 13\r\nSec-WebSocket-Key: {nonce()}\r\n").encode())

    async def handshake(self):
        await self.begin_handshake()
        await self.send(b"\r\n")
        await self.reader.readuntil(HTTP_END)

    async def sign_on(self):
        await self.handshake()
        hello = json.loads(await self.read_text())["hello"]
        own = nonce()
        right = proof("client", self.device["password"], hello["nonce"], own)
        await self.send_text(json.dumps({"auth": {"user": self.device["userName"], "nonce": own, "proof": right}}))
        await self.read_text()


class HostileSite:
    """Hostile devices, each on an address of its own in 127.20.0.0/16, or hostile clients of a fleet's devices."""

    def __init__(self):
        self.entries, self.tasks, self.sockets, self.servers = [], [], [], []
        self.connections, self.faults = 0, set()  # faults: of the attacks themselves, which would otherwise seem to be held

    async def listen(self, behaviour):
        number = len(self.entries)
        entry = {"id": f"hostile-{number}", "name": f"Hostile {number}", "serialNumber": f"XX{number:06}",
                 "ip": f"127.20.{number // 250}.{number % 250 + 1}", "path": "/", "userName": "admin",
                 "password": "pA5#" + os.urandom(8).hex(), "tls": getattr(behaviour, "tls", False), **getattr(behaviour, "entry", {})}
        make_link = getattr(behaviour, "make_link", DeviceLink)

        def serve(reader, writer):
            self.tasks.append(asyncio.create_task(self.run(behaviour, make_link(entry, reader, writer))))

        accepts = getattr(behaviour, "accepts", True)
        address = getattr(behaviour, "address", (entry["ip"], 0))
        listener = socket.create_server(address, backlog=100 if accepts else 0)
        if hasattr(behaviour, "narrow"):  # what is not read stays with its sender and not in the kernel
            listener.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 4096)
            listener.setsockopt(socket.IPPROTO_TCP, socket.TCP_MAXSEG, 536)
        entry["port"] = listener.getsockname()[1]
        self.entries.append(entry)
        if accepts:
            self.servers.append(await asyncio.start_server(serve, sock=listener))
        else:  # filled up, so that whoever dials waits for the answer to the first packet
            fillers = [socket.socket() for _ in range(2)]
            for filler in fillers:
                filler.setblocking(False)
                filler.connect_ex(listener.getsockname())
            self.sockets += [listener, *fillers]
        return entry

    def dial(self, behaviour, device):
        async def again_and_again():
            while True:
                try:
                    reader, writer = await asyncio.open_connection(device["ip"], device["port"])
                    await self.run(behaviour, ClientLink(device, reader, writer))
                except OSError:
                    pass
                await asyncio.sleep(0.05)

        self.tasks.append(asyncio.create_task(again_and_again()))

    async def run(self, behaviour, link):
        self.connections += 1
        try:
            await behaviour(link)
        except (OSError, asyncio.IncompleteReadError):
            pass  # cut by the other side, as it should be
        except Exception as error:  # pylint: disable=broad-except
            self.faults.add(repr(error))
        finally:
            link.writer.transport.abort()

    async def close(self):
        for server in self.servers:
            server.close()
        for task in self.tasks:
            task.cancel()
        await asyncio.gather(*self.tasks, return_exceptions=True)
        for open_socket in self.sockets:
            open_socket.close()
