"""A mail server for tests: takes mails on a free port until its input ends.

    mail_server.py FOLDER [starttls] [signon] [refuse=ADDRESS] [lose]

FOLDER gets the port (`port`), the certificate (`cert.pem`), and what has been taken, one file a mail: the
recipients, an empty line, the message. `lose` takes a mail and breaks off before it says so."""
import pathlib
import ssl
import subprocess
import sys

from aiosmtpd.controller import Controller
from aiosmtpd.smtp import AuthResult, SMTP

folder = pathlib.Path(sys.argv[1])
options = set(sys.argv[2:])
refused = [option.split("=", 1)[1] for option in options if option.startswith("refuse=")]


class Handler:
    count = 0

    async def handle_RCPT(self, server, session, envelope, address, rcpt_options):
        if address in refused:
            return "550 5.1.1 kennt hier niemand"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        Handler.count += 1
        text = "\n".join(envelope.rcpt_tos).encode() + b"\n\n" + envelope.content
        (folder / f"{Handler.count}.mail").write_bytes(text)
        if "lose" in options:
            server.transport.abort()
        return "250 taken"


def signs_on(server, session, envelope, mechanism, auth_data):
    return AuthResult(success=auth_data.login == b"anna" and auth_data.password == b"geheim", handled=False)


class OwnController(Controller):
    def factory(self):
        more = {}
        if "starttls" in options:
            subprocess.run(
                ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "1", "-subj", "/CN=127.0.0.1",
                 "-addext", "subjectAltName=IP:127.0.0.1", "-keyout", folder / "key.pem", "-out", folder / "cert.pem"],
                check=True, capture_output=True) if not (folder / "cert.pem").exists() else None
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(folder / "cert.pem", folder / "key.pem")
            more = {"tls_context": context, "require_starttls": True}
        if "signon" in options:
            more |= {"authenticator": signs_on, "auth_required": True}
        return SMTP(self.handler, hostname="127.0.0.1", **more)

    def _trigger_server(self):
        """The port is known only now."""
        self.port = self.server.sockets[0].getsockname()[1]
        super()._trigger_server()


controller = OwnController(Handler(), hostname="127.0.0.1", port=0)
controller.start()
(folder / "port.new").write_text(str(controller.port))
(folder / "port.new").rename(folder / "port")
sys.stdin.read()
controller.stop()
