// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>

/// One request as it came over the wire.
struct HttpRequest
{
    QByteArray startLine;
    QByteArrayList headers; ///< "Name: value"
    QByteArray body;

    /// The value of the header, whose name is compared without regard to case.
    [[nodiscard]] QByteArray header(const QByteArray &name) const
    {
        for (const QByteArray &line : headers) {
            if (line.left(line.indexOf(':')).toLower() == name.toLower())
                return line.mid(line.indexOf(':') + 1).trimmed();
        }
        return {};
    }
};

/// An HTTP server on 127.0.0.1: keeps every request and answers it with whatever bytes a test wants.
class HttpServer final : public QTcpServer
{
public:
    using Answer = std::function<void(QTcpSocket *)>;

    HttpServer()
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("no port on 127.0.0.1: %s", qPrintable(errorString()));
        connect(this, &QTcpServer::newConnection, this, &HttpServer::serve);
    }

    [[nodiscard]] QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(serverPort())); }

    /// Answers with exactly these bytes and closes the connection.
    void answerWith(const QByteArray &bytes)
    {
        answer = [bytes](QTcpSocket *socket) {
            socket->write(bytes);
            socket->disconnectFromHost();
        };
    }

    /// Answers every request with this body.
    void answerBody(const QByteArray &body, const QByteArray &status = "200 OK")
    {
        answerWith("HTTP/1.1 " + status + "\r\nContent-Type: text/plain\r\nContent-Length: " +
                   QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
    }

    /// Writes head once, then chunk again and again for as long as the other side reads.
    void answerEndlessly(const QByteArray &head, const QByteArray &chunk)
    {
        answer = [this, head, chunk](QTcpSocket *socket) {
            const auto pump = [this, socket, chunk] {
                if (socket->bytesToWrite() < chunk.size())
                    written += socket->write(chunk);
            };
            connect(socket, &QTcpSocket::bytesWritten, socket, pump);
            socket->write(head);
        };
    }

    QList<HttpRequest> requests;
    Answer answer;
    qint64 written = 0;   ///< by answerEndlessly()
    int disconnected = 0; ///< connections that have ended

private:
    void serve()
    {
        while (QTcpSocket *socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++disconnected; });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, received = QByteArray()]() mutable {
                received += socket->readAll();
                if (takeRequest(received) && answer)
                    answer(socket);
            });
        }
    }

    /// Whether a whole request has come in; it is moved from the bytes to the list then.
    bool takeRequest(QByteArray &received)
    {
        const qsizetype end = received.indexOf("\r\n\r\n");
        if (end < 0)
            return false;
        HttpRequest request;
        const QByteArray head = received.left(end);
        for (const QByteArray &line : head.split('\n'))
            request.headers.append(line.trimmed());
        request.startLine = request.headers.takeFirst();
        const qsizetype size = request.header("content-length").toLongLong();
        if (received.size() < end + 4 + size)
            return false;
        request.body = received.mid(end + 4, size);
        received.remove(0, end + 4 + size);
        requests.append(request);
        return true;
    }
};
