"""The game service of every region, played on this machine: it knows one character, notes what it
is asked, and can keep whoever asks waiting."""

import contextlib
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

from portraits import draw_portrait

CHARACTER_PATH, PORTRAIT_PATH = "/api/kyr/character/", "/static-render/"
REALM, NAME, LEVEL, CLASS = "Silver Fen", "Orlaith", 85, "Druid"
PORTRAIT_NAME = "10437-avatar.png"
REPLY = f"""{{
"name":"{NAME}",
"realm":"{REALM}",
"class":11,
"race":4,
"level":{LEVEL},
"thumbnail":"silver-fen/37/{PORTRAIT_NAME}"
}}
"""


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"  # whose connections stay open until whoever asks closes them

    def do_GET(self):
        self.server.service.asked(self)

    def log_message(self, *_):
        pass

    def answer(self, content):
        with contextlib.suppress(ConnectionError):  # whoever asked may have gone
            self.send_response(200)
            self.send_header("Content-Length", str(len(content)))
            self.end_headers()
            self.wfile.write(content)


class GameService:
    def __init__(self):
        self.portrait = draw_portrait()
        self.requests = []  # the path and the headers of each
        self.held = {path: threading.Event() for path in (CHARACTER_PATH, PORTRAIT_PATH)}
        self.let_go()
        self.server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.server.daemon_threads = True
        self.server.service = self
        self.host = f"127.0.0.1:{self.server.server_port}"
        threading.Thread(target=self.server.serve_forever, args=(0.01,), daemon=True).start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        """From now on nobody is there."""
        self.let_go()
        self.server.shutdown()
        self.server.server_close()

    def hold(self, path):
        """Answers nothing of that kind until it is told to let go."""
        self.held[path].clear()

    def let_go(self):
        for answers in self.held.values():
            answers.set()

    def paths(self):
        return [path for path, _ in self.requests]

    def asked(self, handler):
        self.requests.append((handler.path, dict(handler.headers)))
        kind = next(path for path in self.held if handler.path.startswith(path))
        self.held[kind].wait()
        handler.answer(REPLY.encode() if kind == CHARACTER_PATH else self.portrait)
