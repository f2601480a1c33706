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

#define REASON(text) QT_TRANSLATE_NOOP("StreamErrors", text)
const Reason kReasons[] = {
    {AVERROR(ECONNREFUSED), REASON("The connection is refused.")},
    {AVERROR(EHOSTUNREACH), REASON("The host cannot be reached.")},
    {AVERROR(ENETUNREACH), REASON("The network cannot be reached.")},
    {AVERROR(EIO), REASON("The connection cannot be made, or broke.")},
    {AVERROR(ECONNRESET), REASON("The connection was lost.")},
    {AVERROR(EPIPE), REASON("The connection was lost.")},
    {AVERROR(ETIMEDOUT), REASON("There is no answer, or nothing comes any more.")},
    {AVERROR_EOF, REASON("The stream was ended by the other side.")},
    {AVERROR_HTTP_UNAUTHORIZED, REASON("The user name or the password is not accepted.")},
    {AVERROR_HTTP_FORBIDDEN, REASON("Access is forbidden.")},
    {kSentElsewhere, REASON("The camera sends its viewers to another server. It is not followed: "
                            "user name and password would go along.")},
    {AVERROR_HTTP_NOT_FOUND, REASON("There is no stream of this name.")},
    {AVERROR_HTTP_BAD_REQUEST, REASON("The request is refused.")},
    {AVERROR_HTTP_OTHER_4XX, REASON("The request is refused.")},
    {AVERROR_HTTP_SERVER_ERROR, REASON("The server has a fault of its own.")},
    {AVERROR(EPROTONOSUPPORT), REASON("Neither TCP nor UDP is accepted.")},
    {AVERROR_STREAM_NOT_FOUND, REASON("There is no video in it.")},
    {AVERROR_INVALIDDATA, REASON("It is no video that can be read.")},
    {AVERROR(ENOENT), REASON("There is no such file.")},
    {AVERROR(EACCES), REASON("It may not be read.")},
    {AVERROR(ENAMETOOLONG), REASON("The address, or the login in it, is too long.")},
    {AVERROR(EISDIR), REASON("It is a folder.")},
    {AVERROR(ENOMEM), REASON("There is not enough memory.")},
};
#undef REASON

QString translated(const char* text)
{
    return QCoreApplication::translate("StreamErrors", text);
}

} // namespace

QString streamErrorText(int code)
{
    for (const Reason& reason : kReasons) {
        if (reason.code == code)
            return translated(reason.text);
    }
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(code, text.data(), text.size());
    return translated("It cannot be played: %1.").arg(QString::fromLocal8Bit(text.data()));
}

bool isLoginRefusal(int code)
{
    return code == AVERROR_HTTP_UNAUTHORIZED || code == AVERROR_HTTP_FORBIDDEN;
}

} // namespace UICommonMdl
