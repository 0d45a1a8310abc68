#!/usr/bin/python3
"""A device in another language, written from docs/device-protocol.md: proof that the page is enough.

    python_device.py --serial SN-1 --password secret [--user admin] [--port 0] [--state 1]

Prints "port <number>" once it listens on 127.0.0.1, and serves audio-in parameters until it is ended.
"""

import argparse
import asyncio
import base64
import hashlib
import hmac
import json
import secrets

import websockets

SUB_PROTOCOL = "vms-device.v1"
MAX_MESSAGE = 1024 * 1024
REFUSED = 4401
MIN_NONCE_BYTES = 16
UNKNOWN_METHOD, BAD_PARAM = -2, -3
NOT_STORED = ("channelid", "bdefault", "clienttype")


def proof(side, password, device_nonce, client_nonce):
    text = f"{side}:{device_nonce}:{client_nonce}"
    return base64.b64encode(hmac.new(password.encode(), text.encode(), hashlib.sha256).digest()).decode()


def is_long_enough(nonce):
    try:
        return len(base64.b64decode(nonce, validate=True)) >= MIN_NONCE_BYTES
    except ValueError:
        return False


class Device:
    def __init__(self, options):
        self.options = options
        self.audio_in = {"bEnable": False, "encType": "g711u", "sampleRate": 8000, "bitWidth": 16, "aiGain": 50}

    async def serve(self, socket):
        if await self.sign_on(socket):
            async for message in socket:
                request_id, _, text = message.partition("\n")
                await socket.send(request_id + "\n" + json.dumps(self.answer(text)))

    async def sign_on(self, socket):
        nonce = base64.b64encode(secrets.token_bytes(MIN_NONCE_BYTES)).decode()
        await socket.send(json.dumps({"hello": {"serial": self.options.serial, "nonce": nonce}}))
        auth = json.loads(await socket.recv())["auth"]
        right_proof = proof("client", self.options.password, nonce, auth["nonce"])
        accepted = (is_long_enough(auth["nonce"]) and auth["user"] == self.options.user
                    and hmac.compare_digest(auth["proof"], right_proof))
        if not accepted:
            await socket.close(REFUSED)
            return False
        own_proof = proof("device", self.options.password, nonce, auth["nonce"])
        await socket.send(json.dumps({"welcome": {"state": self.options.state, "proof": own_proof}}))
        return True

    def answer(self, text):
        request = json.loads(text)
        method, param = request["method"], request.get("param", {})
        code, result = 0, {}
        if method == "ai_get_param":
            result = self.audio_in
        elif method != "ai_set_param":
            code = UNKNOWN_METHOD
        elif isinstance(param.get("audioAttr"), dict):
            self.audio_in.update({key: value for key, value in param["audioAttr"].items() if key not in NOT_STORED})
        else:
            code = BAD_PARAM
        return {"method": method, "error": {"errorcode": code}, "result": result}


async def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--serial", required=True)
    parser.add_argument("--password", required=True)
    parser.add_argument("--user", default="admin")
    parser.add_argument("--port", type=int, default=0)
    parser.add_argument("--state", type=int, default=1)
    device = Device(parser.parse_args())
    server = await websockets.serve(device.serve, "127.0.0.1", device.options.port,
                                    subprotocols=[SUB_PROTOCOL], max_size=MAX_MESSAGE)
    print("port", server.sockets[0].getsockname()[1], flush=True)
    await asyncio.Future()


if __name__ == "__main__":
    try:
        asyncio.run(main())
    except KeyboardInterrupt:
        pass
