#!/usr/bin/env python3
# A mail server for one message: receive_mail.py FOLDER.
#
# Wants the login user and secret. Prints its port, then who the message is from and to, whether its date is right, and
# the parts; of an attachment whether it is the file of its name in the folder.
import asyncio
import email.utils
import pathlib
import sys
import time

from aiosmtpd.smtp import SMTP, AuthResult


class Receiver:
    async def handle_HELO(self, server, session, envelope, hostname):
        session.host_name, session.extended_smtp = hostname, True  # AUTH is for who says HELO, too
        return "250 " + hostname

    async def handle_DATA(self, server, session, envelope):
        message = email.message_from_bytes(envelope.content)
        print(envelope.mail_from, *envelope.rcpt_tos)
        sent = email.utils.parsedate_to_datetime(message["Date"])
        print(*message["To"].split(), "now" if abs(sent.timestamp() - time.time()) < 600 else sent)
        for part in message.walk():
            content, name = part.get_payload(decode=True), part.get_filename()
            content = f"{name} {pathlib.Path(sys.argv[1], name).read_bytes() == content}" if name else content
            print(part.get_content_type(), *part.defects, content)
        asyncio.get_running_loop().call_later(0.2, asyncio.get_running_loop().stop)  # after the farewell
        return "250 taken"


def check(server, session, envelope, mechanism, data):
    return AuthResult(success=(mechanism, data.login, data.password) == ("LOGIN", b"user", b"secret"))


loop = asyncio.new_event_loop()
server = loop.run_until_complete(loop.create_server(
    lambda: SMTP(Receiver(), data_size_limit=None, loop=loop, authenticator=check, auth_required=True,
                 auth_require_tls=False), "127.0.0.1", 0))
print(server.sockets[0].getsockname()[1], flush=True)
loop.run_forever()
