"""A local SMTP server for the e-mail tests.

usage: smtp_server.py MODE OUTDIR [CERT KEY]
  plain     accepts any mail, no authentication
  auth      AUTH required (user "quintara", password "s3nha"), no TLS
  starttls  STARTTLS required, then AUTH as above
  drop      answers up to DATA, then closes the connection in the middle of the message
  silent    accepts the connection and never says a word
Prints "PORT <n>" when ready; each mail received becomes OUTDIR/<n>.json with the envelope, the
headers, the decoded HTML body and the decoded attachment. Ends by itself after 120 s.
"""
import asyncio
import email
import email.policy
import json
import os
import socket
import ssl
import sys
import warnings

from aiosmtpd.controller import Controller
from aiosmtpd.smtp import AuthResult, LoginPassword

mode, outdir = sys.argv[1], sys.argv[2]


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


class Keep:
    count = 0

    async def handle_RCPT(self, server, session, envelope, address, rcpt_options):
        if "@" not in address:
            return "550 5.1.1 mailbox unavailable"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        msg = email.message_from_bytes(envelope.content, policy=email.policy.default)
        out = {"mail_from": envelope.mail_from, "rcpt_tos": envelope.rcpt_tos,
               "tls": session.ssl is not None,
               "auth": session.auth_data.login.decode() if isinstance(session.auth_data, LoginPassword) else None,
               "headers": {k: str(v) for k, v in msg.raw_items()}, "parts": []}
        for part in msg.walk():
            if part.is_multipart():
                continue
            out["parts"].append({"type": part.get_content_type(), "charset": part.get_content_charset(),
                                 "filename": part.get_filename(),
                                 "disposition": part.get_content_disposition(),
                                 "text": part.get_payload(decode=True).decode("utf-8")})
        Keep.count += 1
        with open(os.path.join(outdir, f"{Keep.count}.json"), "w", encoding="utf-8") as f:
            json.dump(out, f, ensure_ascii=False)
        return "250 OK"


def check(server, session, envelope, mechanism, auth_data):
    ok = isinstance(auth_data, LoginPassword) and auth_data.login == b"quintara" and auth_data.password == b"s3nha"
    return AuthResult(success=ok, handled=False, auth_data=auth_data)


async def raw(port):
    async def talk(reader, writer):
        if mode == "silent":
            await asyncio.sleep(100)
            return
        writer.write(b"220 local ESMTP\r\n")
        while True:
            line = await reader.readline()
            if not line:
                return
            word = line[:4].upper()
            if word in (b"EHLO", b"HELO"):
                writer.write(b"250 local\r\n")
            elif word == b"DATA":
                writer.write(b"354 go on\r\n")
                await writer.drain()
                await reader.read(200)
                writer.transport.abort()  # gone in the middle of the message
                return
            else:
                writer.write(b"250 OK\r\n")
            await writer.drain()

    server = await asyncio.start_server(talk, "127.0.0.1", port)
    print(f"PORT {port}", flush=True)
    async with server:
        await asyncio.sleep(120)


port = free_port()
if mode in ("drop", "silent"):
    asyncio.run(raw(port))
    sys.exit(0)

kw = {}
if mode == "auth":
    warnings.simplefilter("ignore")
    kw = dict(authenticator=check, auth_required=True, auth_require_tls=False)
elif mode == "starttls":
    ctx = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
    ctx.load_cert_chain(sys.argv[3], sys.argv[4])
    kw = dict(authenticator=check, auth_required=True, auth_require_tls=True, tls_context=ctx,
              require_starttls=True)
controller = Controller(Keep(), hostname="127.0.0.1", port=port, **kw)
controller.start()
print(f"PORT {port}", flush=True)
try:
    import time
    time.sleep(120)
finally:
    controller.stop()
