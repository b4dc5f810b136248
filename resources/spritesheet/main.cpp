#include "lottieanimation.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

int fail(const QString &message)
{
    std::fprintf(stderr, "spritesheet: %s\n", qPrintable(message));
    return 1;
}

} // namespace

/// Draws the frames of a Lottie file side by side, row after row from the top left, into a picture.
int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("animation"), QStringLiteral("Lottie file"));
    parser.addPositionalArgument(QStringLiteral("side"), QStringLiteral("of a frame, in pixels"));
    parser.addPositionalArgument(QStringLiteral("frames"), QStringLiteral("how many it has"));
    parser.addPositionalArgument(QStringLiteral("per-row"), QStringLiteral("frames in a row"));
    parser.addPositionalArgument(QStringLiteral("sheet"), QStringLiteral("PNG file to write"));
    parser.process(app);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 5)
        return fail(QStringLiteral("five arguments are needed"));
    const int side = arguments.at(1).toInt();
    const int frames = arguments.at(2).toInt();
    const int perRow = arguments.at(3).toInt();
    if (side < 1 || frames < 1 || perRow < 1)
        return fail(QStringLiteral("side, frames and frames in a row are numbers from 1"));

    const auto animation = LottieAnimation::load(arguments.at(0));
    if (!animation)
        return fail(QStringLiteral("'%1' is not a Lottie file").arg(arguments.at(0)));
    if (animation->frameCount() != frames)
        return fail(QStringLiteral("'%1' has %2 frames, not %3")
                        .arg(arguments.at(0))
                        .arg(animation->frameCount())
                        .arg(frames));

    const int rows = (frames + perRow - 1) / perRow;
    QImage sheet(perRow * side, rows * side, QImage::Format_ARGB32_Premultiplied);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    for (int i = 0; i < frames; ++i)
        painter.drawImage(i % perRow * side, i / perRow * side,
                          animation->render(i, QSize(side, side)));
    painter.end();
    if (!sheet.save(arguments.at(4)))
        return fail(QStringLiteral("cannot write '%1'").arg(arguments.at(4)));
    return 0;
}
