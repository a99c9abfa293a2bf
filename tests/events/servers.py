"""A mail or an upload server on loopback for the tests. Tells its port in the first line, then one line of JSON for each
mail as the email package reads it. Ends with its standard input.

servers.py smtp          without a login
servers.py smtp login    AUTH LOGIN for "operator" with the password "pass wörd"
servers.py ftp FOLDER    the same login, files go to FOLDER
"""
import base64
import email
import json
import sys
import threading


def described(envelope):
    message = email.message_from_bytes(envelope.content)
    parts = []
    for part in message.walk():
        if part.is_multipart():
            continue
        content = part.get_payload(decode=True)
        parts.append({
            "type": part.get_content_type(),
            "charset": part.get_content_charset(),
            "file": part.get_filename(),
            "longest": max((len(line) for line in part.get_payload().splitlines()), default=0),
            "content": base64.b64encode(content).decode(),
        })
    return {
        "from": envelope.mail_from,
        "recipients": envelope.rcpt_tos,
        "headers": [(name, str(value)) for name, value in message.items()],
        "defects": [repr(defect) for defect in message.defects],
        "parts": parts,
        "end": message.epilogue,
    }


def smtp(login):
    import asyncio
    from aiosmtpd.smtp import SMTP, AuthResult

    class Handler:
        async def handle_DATA(self, server, session, envelope):
            print(json.dumps(described(envelope)), flush=True)
            return "250 taken"

    class Server(SMTP):
        AuthLoginUsernameChallenge = "Username:"
        AuthLoginPasswordChallenge = "Password:"

        async def smtp_HELO(self, hostname):
            await super().smtp_HELO(hostname)
            self.session.extended_smtp = True  # a login without EHLO, as many servers have it

    def authenticate(server, session, envelope, mechanism, data):
        good = data.login == b"operator" and data.password == "pass wörd".encode("latin-1")
        return AuthResult(success=good, handled=False)

    def protocol():
        options = {"authenticator": authenticate, "auth_require_tls": False, "auth_required": True} if login else {}
        return Server(Handler(), hostname="localhost", loop=loop, **options)

    loop = asyncio.new_event_loop()
    server = loop.run_until_complete(loop.create_server(protocol, "127.0.0.1", 0))
    threading.Thread(target=loop.run_forever, daemon=True).start()
    return server.sockets[0].getsockname()[1]


def ftp(folder):
    import logging
    from pyftpdlib.authorizers import DummyAuthorizer
    from pyftpdlib.handlers import FTPHandler
    from pyftpdlib.servers import FTPServer

    logging.basicConfig(level=logging.ERROR)
    authorizer = DummyAuthorizer()
    authorizer.add_user("operator", "pass wörd", folder, perm="elradfmw")
    FTPHandler.authorizer = authorizer
    server = FTPServer(("127.0.0.1", 0), FTPHandler)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server.address[1]


if __name__ == "__main__":
    port = ftp(sys.argv[2]) if sys.argv[1] == "ftp" else smtp("login" in sys.argv)
    print(port, flush=True)
    sys.stdin.read()
