#pragma once

#include "host/video/picturesource.h"

namespace UICommonMdl
{

/// Stands for a source that cannot be played, and says why.
class KQHOST_EXPORT NoSignalSource : public PictureSource
{
    Q_OBJECT

public:
    explicit NoSignalSource(const QString& reason);

    void start() override;
    void stop() override;
    QImage picture() const override;
    QSize pictureSize() const override;
    bool canTryAgain() const override;

private:
    QString m_reason;
};

} // namespace UICommonMdl
