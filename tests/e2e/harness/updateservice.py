# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The update service, played on this machine at the address that test builds ask."""

import http.server
import queue
import threading

PORT = 8977


class UpdateService:
    """Answers every request with the same text; None never answers. Keeps what came in."""

    def __init__(self, answer):
        self.answer = answer
        self.requests = queue.Queue()
        self._stopped = threading.Event()
        service = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def handle_one_request(self):
                self.raw_requestline = self.rfile.readline(65537)
                if not self.raw_requestline or not self.parse_request():
                    self.close_connection = True
                    return
                body = self.rfile.read(int(self.headers.get("Content-Length", "0")))
                service.requests.put((self.requestline, dict(self.headers.items()), body))
                self.close_connection = True
                if service.answer is None:
                    service._stopped.wait()
                    return
                text = service.answer.encode()
                self.wfile.write(b"HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nConnection: close\r\n"
                                 b"Content-Length: %d\r\n\r\n%s" % (len(text), text))

            def log_message(self, *_):
                pass

        class Server(http.server.ThreadingHTTPServer):
            daemon_threads = True
            allow_reuse_address = True

            def handle_error(self, request, client_address):
                """A program that ends in the middle is what some tests want."""

        self._server = Server(("127.0.0.1", PORT), Handler)
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)
        self._thread.start()

    def stop(self):
        self._stopped.set()
        self._server.shutdown()
        self._server.server_close()
        self._thread.join()
