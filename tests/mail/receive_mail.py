#!/usr/bin/env python3
# A mail server for one message: receive_mail.py FOLDER.
#
# Wants the login user and secret. Prints its port, then who the message is from and to, some headers, the zone and
# whether the date is right, and the parts; of an attachment whether it is the file of its name in the folder.
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
        self.received.set_result(envelope)
        return "250 taken"


async def main(folder):
    def check(server, session, envelope, mechanism, data):
        return AuthResult(success=(mechanism, data.login, data.password) == ("LOGIN", b"user", b"secret"))

    loop = asyncio.get_running_loop()
    Receiver.received = loop.create_future()
    server = await loop.create_server(
        lambda: SMTP(Receiver(), data_size_limit=None, loop=loop, authenticator=check, auth_required=True,
                     auth_require_tls=False), "127.0.0.1", 0)
    print(server.sockets[0].getsockname()[1], flush=True)
    envelope = await Receiver.received
    await asyncio.sleep(0.2)  # for the farewell
    message = email.message_from_bytes(envelope.content)
    print(envelope.mail_from, *envelope.rcpt_tos)
    print(*(" ".join(message[name].split()) for name in ("From", "To", "Subject", "X-Mailer")))
    sent = email.utils.parsedate_to_datetime(message["Date"])
    print(sent.strftime("%z"), "now" if abs(sent.timestamp() - time.time()) < 600 else sent)
    for part in message.walk():
        content, name = part.get_payload(decode=True), part.get_filename()
        content = f"{name} {(folder / name).read_bytes() == content}" if name else content
        print(part.get_content_type(), *part.defects, content)


asyncio.run(main(pathlib.Path(sys.argv[1])))
