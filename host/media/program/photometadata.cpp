#include "host/media/program/photometadata.h"

#include "host/media/program/exivfile.h"
#include "host/media/program/mediatexts.h"
#include "host/media/program/scenewords.h"
#include "host/media/protocol/mediafailure.h"

#include <QImageReader>
#include <QTextCodec>

#include <exiv2/exiv2.hpp>

#include <cmath>
#include <initializer_list>

namespace {

constexpr int MaxKeywords = 200;
constexpr int FirstSideways = 5; // of the EXIF orientations 1 to 8

QString text(const std::string &bytes)
{
    QTextCodec::ConverterState state;
    static QTextCodec *s_utf8 = QTextCodec::codecForName("UTF-8");
    const QString utf8 = s_utf8->toUnicode(bytes.data(), int(bytes.size()), &state);
    return state.invalidChars == 0 ? utf8 : QString::fromLatin1(bytes.data(), int(bytes.size()));
}

class Reader
{
public:
    explicit Reader(Exiv2::Image &photo)
        : m_photo(photo)
        , m_exif(photo.exifData())
    {
    }

    void readInto(MediaAnswer *answer) const
    {
        const auto add = [answer](const char *key, const QString &value) {
            if (!value.isEmpty())
                answer->metaData.append({QString::fromLatin1(key), value});
        };
        add("isoSpeed", isoSpeed());
        add("make", print(Exiv2::make(m_exif)));
        add("model", print(Exiv2::model(m_exif)));
        add("whiteBalance", print(Exiv2::whiteBalance(m_exif)));
        add("exposureTime", MediaTexts::exposureTime(exposureTime()));
        add("focalLength",
            MediaTexts::focalLength(number({"Exif.Photo.FocalLength", "Exif.Image.FocalLength"})));
        add("software", software());
        add("fNumber", MediaTexts::fNumber(fNumber()));
        answer->scenes = SceneWords::scenesOf(keywords());
    }

    int orientation() const
    {
        const double value = number({"Exif.Image.Orientation"});
        return value >= 1 && value <= 8 ? int(value) : 0;
    }

private:
    QString print(Exiv2::ExifData::const_iterator field) const
    {
        return field == m_exif.end() ? QString() : MediaTexts::clean(text(field->print(&m_exif)));
    }

    /// The first of \a keys that is there; not a number when none is.
    double number(std::initializer_list<const char *> keys) const
    {
        for (const char *key : keys) {
            const auto field = m_exif.findKey(Exiv2::ExifKey(key));
            if (field == m_exif.end() || field->count() == 0)
                continue;
            const Exiv2::Rational value = field->toRational();
            if (value.second != 0)
                return double(value.first) / value.second;
        }
        return std::nan("");
    }

    QString isoSpeed() const
    {
        const auto field = Exiv2::isoSpeed(m_exif);
        if (field == m_exif.end() || field->count() == 0)
            return QString();
        const long value = field->toLong();
        return value > 0 ? QString::number(value) : QString();
    }

    // Cameras that write no plain numbers write logarithms of them.
    double exposureTime() const
    {
        const double plain = number({"Exif.Photo.ExposureTime", "Exif.Image.ExposureTime"});
        return std::isnan(plain)
            ? std::exp2(-number({"Exif.Photo.ShutterSpeedValue", "Exif.Image.ShutterSpeedValue"}))
            : plain;
    }

    double fNumber() const
    {
        const double plain = number({"Exif.Photo.FNumber", "Exif.Image.FNumber"});
        return std::isnan(plain)
            ? std::exp2(number({"Exif.Photo.ApertureValue", "Exif.Image.ApertureValue"}) / 2)
            : plain;
    }

    QString software() const
    {
        const QString exif = print(m_exif.findKey(Exiv2::ExifKey("Exif.Image.Software")));
        if (!exif.isEmpty())
            return exif;
        const auto xmp = m_photo.xmpData().findKey(Exiv2::XmpKey("Xmp.xmp.CreatorTool"));
        return xmp == m_photo.xmpData().end() ? QString()
                                              : MediaTexts::clean(text(xmp->toString()));
    }

    QStringList keywords() const
    {
        QStringList words;
        for (const auto &field : m_photo.xmpData()) {
            const std::string key = field.key();
            if (key != "Xmp.dc.subject" && key != "Xmp.lr.hierarchicalSubject"
                && key != "Xmp.digiKam.TagsList")
                continue;
            for (long i = 0; i < field.count() && words.size() < MaxKeywords; ++i)
                words.append(text(field.toString(i)));
        }
        for (const auto &field : m_photo.iptcData()) {
            if (words.size() < MaxKeywords && field.key() == "Iptc.Application2.Keywords")
                words.append(text(field.toString()));
        }
        return words;
    }

    const Exiv2::Image &m_photo;
    const Exiv2::ExifData &m_exif;
};

void addResolution(QSize size, bool sideways, MediaAnswer *answer)
{
    if (sideways)
        size.transpose();
    const QString resolution = MediaTexts::resolution(size.width(), size.height());
    if (!resolution.isEmpty())
        answer->metaData.append({QStringLiteral("Resolution"), resolution});
}

} // namespace

void setUpPhotoMetadata()
{
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    Exiv2::enableBMFF();
    Exiv2::XmpParser::initialize();
}

MediaAnswer photoMetadata(QIODevice &file)
{
    MediaAnswer answer;
    QSize size;
    int orientation = 0;
    try {
        const auto photo = ExivFile::readPhoto(file);
        const Reader reader(*photo);
        reader.readInto(&answer);
        orientation = reader.orientation();
        size = QSize(photo->pixelWidth(), photo->pixelHeight());
    } catch (const Exiv2::AnyError &) {
        // what has been read so far stays; a picture without any still has its size
    }
    bool sideways = orientation >= FirstSideways;
    if (size.isEmpty()) {
        file.seek(0);
        QImageReader reader(&file);
        reader.setDecideFormatFromContent(true);
        size = reader.size();
        if (orientation == 0)
            sideways = reader.transformation() & QImageIOHandler::TransformationRotate90;
    }
    addResolution(size, sideways, &answer);
    if (answer.metaData.isEmpty() && answer.scenes.isEmpty())
        answer.error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "There is no metadata in the file."));
    return answer;
}
