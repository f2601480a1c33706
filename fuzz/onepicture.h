#pragma once

#include "host/video/picturesource.h"

#include <utility>

/// One picture, grey by default, which is there at once.
class OnePicture : public UICommonMdl::PictureSource
{
public:
    explicit OnePicture(const QSize& size) : m_picture(size, QImage::Format_RGB32)
    {
        m_picture.fill(Qt::gray);
    }
    explicit OnePicture(QImage picture) : m_picture(std::move(picture)) {}

    void start() override
    {
        setState(UICommonMdl::PictureState::Playing);
        announcePicture();
    }
    void stop() override { setState(UICommonMdl::PictureState::Ended); }
    QImage picture() const override { return m_picture; }
    QSize pictureSize() const override { return m_picture.size(); }

private:
    QImage m_picture;
};
