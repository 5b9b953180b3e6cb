#include "help/ApplicationIcon.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using namespace quillon;

namespace {

QImage painted(int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    PaintApplicationIcon(painter, side);
    return image;
}

TEST(ApplicationIconTest, OffersTheSizesDesktopsAskFor)
{
    const QIcon icon = ApplicationIcon();
    ASSERT_FALSE(icon.isNull());
    const QList<QSize> sizes = icon.availableSizes();
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        EXPECT_TRUE(sizes.contains(QSize(side, side))) << side;
}

TEST(ApplicationIconTest, FlagIsRedOnTheSky)
{
    const QImage image = painted(64);
    // Inside the flag, near its pole.
    const QColor flag = image.pixelColor(31, 19);
    EXPECT_GT(flag.red(), 200);
    EXPECT_LT(flag.green(), 90);
    // The sky above the flag's tip.
    const QColor sky = image.pixelColor(50, 12);
    EXPECT_GT(sky.blue(), sky.red());
    EXPECT_EQ(sky.alpha(), 255);
    // The fairway below the green.
    const QColor fairway = image.pixelColor(10, 56);
    EXPECT_GT(fairway.green(), fairway.red());
    EXPECT_GT(fairway.green(), fairway.blue());
}

TEST(ApplicationIconTest, CornersStayClear)
{
    // The badge has rounded corners: the desktop's background shows there.
    for (const int side : {16, 64, 256}) {
        const QImage image = painted(side);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << side;
        EXPECT_EQ(image.pixelColor(side - 1, side - 1).alpha(), 0) << side;
    }
}

} // namespace
