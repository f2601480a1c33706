#pragma once

#include <QString>

namespace UICommonMdl
{

/// What the libraries' codes lack: a server sent its client, who has a login, to another server.
extern const int kSentElsewhere;

/**
 * In plain words, and without any address, why a stream or file cannot be played.
 * @p code is what the decoding libraries answered, below 0.
 */
QString streamErrorText(int code);

/// Whether a server that answered @p code does not let this user in. Cameras lock an account after
/// a few tries.
bool isLoginRefusal(int code);

} // namespace UICommonMdl
