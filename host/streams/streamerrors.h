#pragma once

#include <QString>

namespace UICommonMdl
{

/**
 * In plain words, and without any address, why a stream or file cannot be played.
 * @p code is what the decoding libraries answered, below 0.
 */
QString streamErrorText(int code);

} // namespace UICommonMdl
