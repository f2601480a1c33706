#include "host/streams/streamerrors.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>

extern "C" {
#include <libavutil/error.h>
}

namespace UICommonMdl
{

const int kSentElsewhere = FFERRTAG('A', 'W', 'A', 'Y');

namespace
{

struct Reason {
    int code;
    const char* text;
};

const Reason kReasons[] = {
    {AVERROR(ECONNREFUSED), QT_TRANSLATE_NOOP("StreamErrors", "The connection is refused.")},
    {AVERROR(EHOSTUNREACH), QT_TRANSLATE_NOOP("StreamErrors", "The host cannot be reached.")},
    {AVERROR(ENETUNREACH), QT_TRANSLATE_NOOP("StreamErrors", "The network cannot be reached.")},
    {AVERROR(EIO), QT_TRANSLATE_NOOP("StreamErrors", "The connection cannot be made, or broke.")},
    {AVERROR(ECONNRESET), QT_TRANSLATE_NOOP("StreamErrors", "The connection was lost.")},
    {AVERROR(EPIPE), QT_TRANSLATE_NOOP("StreamErrors", "The connection was lost.")},
    {AVERROR(ETIMEDOUT),
     QT_TRANSLATE_NOOP("StreamErrors", "There is no answer, or nothing comes any more.")},
    {AVERROR_EOF, QT_TRANSLATE_NOOP("StreamErrors", "The stream was ended by the other side.")},
    {AVERROR_HTTP_UNAUTHORIZED,
     QT_TRANSLATE_NOOP("StreamErrors", "The user name or the password is not accepted.")},
    {AVERROR_HTTP_FORBIDDEN, QT_TRANSLATE_NOOP("StreamErrors", "Access is forbidden.")},
    {kSentElsewhere,
     QT_TRANSLATE_NOOP("StreamErrors",
                       "The camera sends its viewers to another server. It is not followed: "
                       "user name and password would go along.")},
    {AVERROR_HTTP_NOT_FOUND, QT_TRANSLATE_NOOP("StreamErrors", "There is no stream of this name.")},
    {AVERROR_HTTP_BAD_REQUEST, QT_TRANSLATE_NOOP("StreamErrors", "The request is refused.")},
    {AVERROR_HTTP_OTHER_4XX, QT_TRANSLATE_NOOP("StreamErrors", "The request is refused.")},
    {AVERROR_HTTP_SERVER_ERROR,
     QT_TRANSLATE_NOOP("StreamErrors", "The server has a fault of its own.")},
    {AVERROR(EPROTONOSUPPORT),
     QT_TRANSLATE_NOOP("StreamErrors", "Neither TCP nor UDP is accepted.")},
    {AVERROR_STREAM_NOT_FOUND, QT_TRANSLATE_NOOP("StreamErrors", "There is no video in it.")},
    {AVERROR_INVALIDDATA, QT_TRANSLATE_NOOP("StreamErrors", "It is no video that can be read.")},
    {AVERROR(ENOENT), QT_TRANSLATE_NOOP("StreamErrors", "There is no such file.")},
    {AVERROR(EACCES), QT_TRANSLATE_NOOP("StreamErrors", "It may not be read.")},
    {AVERROR(ENAMETOOLONG),
     QT_TRANSLATE_NOOP("StreamErrors", "The address, or the login in it, is too long.")},
    {AVERROR(EISDIR), QT_TRANSLATE_NOOP("StreamErrors", "It is a folder.")},
    {AVERROR(ENOMEM), QT_TRANSLATE_NOOP("StreamErrors", "There is not enough memory.")},
};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(StreamErrors)
};

} // namespace

QString streamErrorText(int code)
{
    for (const Reason& reason : kReasons) {
        if (reason.code == code)
            return Texts::tr(reason.text);
    }
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(code, text.data(), text.size());
    return Texts::tr("It cannot be played: %1.").arg(QString::fromLocal8Bit(text.data()));
}

bool isLoginRefusal(int code)
{
    return code == AVERROR_HTTP_UNAUTHORIZED || code == AVERROR_HTTP_FORBIDDEN;
}

} // namespace UICommonMdl
