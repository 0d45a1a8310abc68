#!/usr/bin/python3
"""What an engineer would write instead: configures the OSD of all devices of an inventory with asyncio.

    asyncio_client.py INVENTORY [--read]

With --read it reads only, and works out what it would write. Prints {"runMs": …}: from the first request to the last
answer, all devices connected and signed on beforehand.
"""

import asyncio
import base64
import hashlib
import hmac
import json
import os
import secrets
import sys
import time
import uuid

import websockets

WANTED = {"bShowOSD": False, "timeFormat": "YYYY-MM-DD hh:mm:ss", "timePos": "left_top", "channelName": "HD IPC",
          "position": "left_top", "bLargeOSD": False}
PAUSE = 0.010
SETTING_UP_AT_ONCE = 32


def request(method, param):
    return json.dumps({"level": "Operator", "method": method, "param": param}, indent=4)


class Device:
    def __init__(self, record):
        self.record = record
        self.request_id = "{%s}" % uuid.uuid4()
        self.socket = None

    async def connect(self, places):
        record = self.record
        url = record.get("url") or "ws://%s:%d%s" % (record["ip"], record["port"], record.get("path", "/"))
        async with places:
            self.socket = await websockets.connect(url, subprotocols=["vms-device.v1"], ping_interval=None)
            device_nonce = json.loads(await self.socket.recv())["hello"]["nonce"]
            nonce = base64.b64encode(secrets.token_bytes(16)).decode()
            text = "client:%s:%s" % (device_nonce, nonce)
            proof = hmac.new(record["password"].encode(), text.encode(), hashlib.sha256).digest()
            auth = {"user": record["userName"], "nonce": nonce, "proof": base64.b64encode(proof).decode()}
            await self.socket.send(json.dumps({"auth": auth}))
            await self.socket.recv()

    async def exchange(self, text):
        await self.socket.send(self.request_id + "\n" + text)
        answer = json.loads((await self.socket.recv()).partition("\n")[2])
        if answer["error"]["errorcode"] != 0:
            sys.exit("a device refused to be configured")
        return answer

    async def configure(self, only_reads):
        answer = await self.exchange(request("chnosd_get_param", {"channelid": 0}))
        merged = {key: WANTED.get(key, value) for key, value in answer["result"].items()}
        if only_reads:
            return
        await asyncio.sleep(PAUSE)
        await self.exchange(request("chnosd_set_param", {"attr": merged, "channelid": 0}))


async def main(path, only_reads):
    with open(path, encoding="utf-8") as file:
        devices = [Device(record) for record in json.load(file)["devices"]]
    places = asyncio.Semaphore(SETTING_UP_AT_ONCE)
    await asyncio.gather(*(device.connect(places) for device in devices))
    start = time.perf_counter()
    await asyncio.gather(*(device.configure(only_reads) for device in devices))
    print(json.dumps({"runMs": (time.perf_counter() - start) * 1000}), flush=True)
    os._exit(0)  # closing the connections is not measured


if __name__ == "__main__":
    if len(sys.argv) < 2 or sys.argv[2:] not in ([], ["--read"]):
        sys.exit(__doc__)
    asyncio.run(main(sys.argv[1], "--read" in sys.argv))
