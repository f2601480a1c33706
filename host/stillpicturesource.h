#pragma once

#include "host/picturesource.h"

namespace UICommonMdl
{

/// A picture file. One that cannot be shown is no signal, with the reason.
class KQHOST_EXPORT StillPictureSource : public PictureSource
{
    Q_OBJECT

public:
    explicit StillPictureSource(const QString& file);

    void start() override;
    void stop() override;
    QImage picture() const override;
    QSize pictureSize() const override;

private:
    /// Why the file cannot be shown, empty when it was loaded.
    QString load();

    QString m_file;
    QImage m_picture;
};

} // namespace UICommonMdl
