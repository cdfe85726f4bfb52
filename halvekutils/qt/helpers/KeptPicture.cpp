// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/KeptPicture.h>

#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QRect>
#include <QString>

namespace halvek {

void DrawKept(QPainter& painter, const QRect& area, QLatin1String name, unsigned number,
              const std::function<void(QPainter&)>& paint) {
    const qreal pixelRatio = painter.device()->devicePixelRatio();
    const QString key = QStringLiteral("halvekutils/%1/%2/%3/%4/%5")
                            .arg(name)
                            .arg(number)
                            .arg(area.width())
                            .arg(area.height())
                            .arg(pixelRatio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(area.size() * pixelRatio);
        picture.setDevicePixelRatio(pixelRatio);
        picture.fill(Qt::transparent);
        QPainter inside(&picture);
        paint(inside);
        inside.end();
        QPixmapCache::insert(key, picture);
    }
    painter.drawPixmap(area.topLeft(), picture);
}

}  // namespace halvek
