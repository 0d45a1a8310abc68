#!/usr/bin/env python3
"""Every request to ONVIF cameras and every answer of the fleet's, operation by operation, against the official schema: onvif_schema.py BIN.
ORDA_ONVIF_SCHEMA names the directory that has the schema's ver10 and ver20 (the directory wsdl of the standard's public repository)."""
import collections
import contextlib
import http.client
import http.server
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import threading

BIN = pathlib.Path(sys.argv[1]).resolve()
SCHEMA = os.environ.get("ORDA_ONVIF_SCHEMA")
SKIPPED = 77
CAMERAS = 24  # of seed 1: so many have all that the fleet's cameras differ in
SOAP = "{http://www.w3.org/2003/05/soap-envelope}"
SERVICES = ("ver10/device/wsdl/devicemgmt.wsdl", "ver10/media/wsdl/media.wsdl", "ver20/media/wsdl/media.wsdl", "ver20/imaging/wsdl/imaging.wsdl")
# What the schema takes from other standards, as far as it names it. Nothing of that stands in what is looked at here.
OTHERS = {
    "http://www.w3.org/2005/05/xmlmime": '<xs:attribute name="contentType" type="xs:string"/>',
    "http://www.w3.org/2004/08/xop/include": '<xs:element name="Include"/>',
    "http://www.w3.org/2003/05/soap-envelope": '<xs:complexType name="Envelope"/><xs:complexType name="Fault"/>',
    "http://docs.oasis-open.org/wsn/b-2": '<xs:complexType name="FilterType"/><xs:complexType name="NotificationMessageHolderType"/>',
}
# Runs that together use every operation that sets something.
RUNS = (("video", "stream0.bitRate=1000", "stream0.frameRate=15", "stream1.quality=60", "stream0.venctype=h264", "stream0.rcMode=vbr"),
        ("video", "stream0.width=1280", "stream0.height=720"),
        ("osd", "channelName=Größe <1> & \"2\"", "position=left_top", "timePos=right_bottom", "timeFormat=MM/DD/YYYY hh:mm:ss"),
        ("osd", "bShowOSD=false"),
        ("osd", "bShowOSD=true", "channelName=Gate"),
        ("audio", "encType=g711u", "aoGain=30"),
        ("audio", "encType=g711a"),
        ("image", "flip=both", "lightmode=off"),
        ("onvif", "discoveryflag=0"))


def skip(reason):
    print("skipped:", reason)
    sys.exit(SKIPPED)


if not SCHEMA:
    skip("ORDA_ONVIF_SCHEMA is not set")
try:
    import xmlschema
    from lxml import etree as ElementTree
except ImportError as missing:
    skip(f"{missing} (see packages.txt)")


def official_schema(directory):
    """One schema of all services; what they take from elsewhere comes from OTHERS, and nothing from the network."""
    xs = "http://www.w3.org/2001/XMLSchema"
    locations, imports = [], ""

    def put(namespace, text):
        file = pathlib.Path(directory, f"{len(list(pathlib.Path(directory).iterdir()))}.xsd")
        file.write_text(text)
        return f'<xs:import namespace="{namespace}" schemaLocation="{file.as_uri()}"/>', (namespace, file.as_uri())

    for namespace, content in OTHERS.items():
        locations.append(put(namespace, f'<xs:schema xmlns:xs="{xs}" targetNamespace="{namespace}">{content}</xs:schema>')[1])
    for service in SERVICES:
        path = pathlib.Path(SCHEMA, service)
        schema = ElementTree.parse(path).find(f".//{{{xs}}}schema")
        for imported in schema.iter(f"{{{xs}}}import", f"{{{xs}}}include"):
            location = imported.get("schemaLocation")
            if location and "://" not in location:
                imported.set("schemaLocation", (path.parent / location).resolve().as_uri())
        imports += put(schema.get("targetNamespace"), ElementTree.tostring(schema).decode())[0]
    whole = f'<xs:schema xmlns:xs="{xs}">{imports}</xs:schema>'
    # 1.1, because the official schema has wildcards beside elements of the same namespace, which 1.0 forbids.
    return xmlschema.XMLSchema11(whole, locations=locations, allow="local", base_url=directory)


class Judge:
    """Looks at texts as they pass, from any thread."""

    def __init__(self, directory):
        self.schema = official_schema(directory)
        self.lock = threading.Lock()
        self.seen = collections.Counter()
        self.known = set()  # looked at already
        self.faults = {}

    def look(self, text):
        with self.lock:
            element = ElementTree.fromstring(text).find(f"{SOAP}Body")[0]
            if element.tag == f"{SOAP}Fault":
                return
            name = ElementTree.QName(element)
            title = f"{'/'.join(name.namespace.split('/')[-3:-1])} {name.localname}"
            self.seen[title] += 1
            content = ElementTree.tostring(element)
            if content in self.known:
                return
            self.known.add(content)
            for error in self.schema.iter_errors(element):
                self.faults.setdefault(f"{title}: {error.reason} at {error.path}", content.decode())


def listener(judge, fleet_port):
    """Stands before the fleet's cameras, at the same addresses and at a port of its own."""

    class Between(http.server.BaseHTTPRequestHandler):
        protocol_version = "HTTP/1.1"

        def do_POST(self):  # the base class has the name
            text = self.rfile.read(int(self.headers["Content-Length"]))
            judge.look(text)
            camera = http.client.HTTPConnection(self.connection.getsockname()[0], fleet_port, timeout=20)
            camera.request("POST", self.path, text, {k: v for k, v in self.headers.items() if k != "Connection"})
            answer = camera.getresponse()
            content = answer.read()
            camera.close()
            if content:
                judge.look(content)
            with contextlib.suppress(BrokenPipeError):  # a program that ends awaits no answers
                self.pass_on(answer, content)

        def pass_on(self, answer, content):
            self.send_response(answer.status)
            for name in ("WWW-Authenticate", "Content-Type"):
                for value in answer.headers.get_all(name, []):
                    self.send_header(name, value)
            self.send_header("Content-Length", str(len(content)))
            self.end_headers()
            self.wfile.write(content)

        def log_message(self, *_):
            pass

    server = http.server.ThreadingHTTPServer(("0.0.0.0", 0), Between)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server


def main():
    with contextlib.ExitStack() as stack:
        judge = Judge(stack.enter_context(tempfile.TemporaryDirectory()))
        home = stack.enter_context(tempfile.TemporaryDirectory())
        environment = dict(os.environ, HOME=home, XDG_STATE_HOME=home, XDG_CONFIG_HOME=home, LC_ALL="C.UTF-8")
        fleet = subprocess.Popen([str(BIN / "orda_fleet"), "--onvif", str(CAMERAS), "--inventory", "site.json"], cwd=home, stdout=subprocess.PIPE, text=True)
        stack.callback(fleet.wait)
        stack.callback(fleet.terminate)
        fleet.stdout.readline()
        site = pathlib.Path(home, "site.json")
        inventory = json.loads(site.read_text())
        server = listener(judge, inventory["devices"][0]["port"])
        stack.callback(server.shutdown)
        for device in inventory["devices"]:
            device["port"] = server.server_port
        site.write_text(json.dumps(inventory))

        def batch(*arguments):
            done = subprocess.run([str(BIN / "orda_batch"), *arguments, "--inventory", "site.json"], cwd=home, env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=120)
            if done.returncode not in (0, 1):  # 1: some cameras cannot do it
                sys.exit(f"{arguments}: exit code {done.returncode}\n{done.stdout}")

        for family, *values in RUNS:
            batch("apply", family, "--yes", *(part for value in values for part in ("--set", value)))
            batch("undo", "last", "--yes")
    for kind, text in judge.faults.items():
        print(f"NOT VALID: {kind}\n  {text}")
    print("\n".join(f"{count:6} {name}" for name, count in sorted(judge.seen.items())))
    setting = [name for name in judge.seen if name.split()[1].startswith(("Set", "Create", "Delete")) and not name.endswith("Response")]
    if len(setting) < 14:  # each of the operations that set something, in both versions where there are two
        sys.exit(f"only {setting} were used")
    sys.exit(1 if judge.faults else 0)


main()
