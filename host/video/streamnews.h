#pragma once

#include <QImage>
#include <QString>

#include <memory>
#include <optional>

namespace UICommonMdl
{

class DecodedPicture;

/// What came from a stream's thread since it was asked last.
struct StreamNews {
    QImage picture; ///< the newest, as it is to be shown; null when none came
    std::shared_ptr<const DecodedPicture> decoded; ///< the same one
    std::optional<QString> failure;                ///< why the stream is over
};

} // namespace UICommonMdl
