"""Proves times as RFC 3161 says, for tests: timestampserver.py FOLDER

FOLDER holds time.pem and time.key, a certificate for it; the address that it serves is written into
FOLDER/address.
"""

import http.server
import pathlib
import subprocess
import sys

FOLDER = pathlib.Path(sys.argv[1])
SETTINGS = f"""[tsa]
default_tsa = own
[own]
serial = {FOLDER}/serial
signer_digest = sha256
default_policy = 1.2.3.4
digests = sha256
"""


class Handler(http.server.BaseHTTPRequestHandler):
    def do_POST(self):  # noqa: N802  the name that its class looks for
        query, reply = FOLDER / "query", FOLDER / "reply"
        query.write_bytes(self.rfile.read(int(self.headers["Content-Length"])))
        subprocess.run(["openssl", "ts", "-reply", "-config", FOLDER / "settings", "-queryfile", query,
                        "-signer", FOLDER / "time.pem", "-inkey", FOLDER / "time.key", "-out", reply],
                       check=True)
        body = reply.read_bytes()
        self.send_response(200)
        self.send_header("Content-Type", "application/timestamp-reply")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)


(FOLDER / "settings").write_text(SETTINGS)
(FOLDER / "serial").write_text("01\n")
with http.server.HTTPServer(("127.0.0.1", 0), Handler) as server:
    (FOLDER / "address.new").write_text(f"http://127.0.0.1:{server.server_port}/")
    (FOLDER / "address.new").rename(FOLDER / "address")
    server.serve_forever()
