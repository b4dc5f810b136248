#include "host/scan/filecategory.h"

#include <QHash>

namespace {

struct Family
{
    FileCategory category;
    const char *extensions; // lower case, a space between
};

constexpr Family Families[] = {
    {AudioCategory,
     "mp3 wav flac aac m4a ogg oga opus wma aif aiff aifc ape alac amr mid midi mka "
     "ac3 dts au caf m4b m4p mpc ra wv"},
    {VideoCategory,
     "mp4 mov avi mkv wmv flv webm mpg mpeg m4v 3gp 3g2 asf vob ogv rm rmvb divx "
     "f4v mxf qt m2v mpe dv"},
    {CameraVideoCategory, "mts m2ts m2t insv mod tod lrv 360 braw r3d crm lrf"},
    {DocumentCategory,
     "doc docx docm dot dotx xls xlsx xlsm xlt xltx xlsb ppt pptx pptm pps ppsx pot "
     "potx pdf txt rtf odt ods odp odg odf csv tsv md tex epub mobi azw azw3 djvu "
     "xps oxps pages numbers key wps et dps vsd vsdx pub one log chm ini"},
    {EmailCategory, "eml msg pst ost mbox emlx dbx oft mbx nsf olm vcf ics"},
    {DatabaseCategory,
     "db db3 sqlite sqlite3 s3db mdb accdb mdf ldf ndf dbf sql fdb gdb frm myd myi "
     "ibd edb odb wdb sdf"},
    {PhotoCategory,
     "jpg jpeg jpe jfif jp2 jxl png gif bmp dib tif tiff webp heic heif avif psd "
     "psb svg ico tga pcx ppm pgm pbm pnm xpm xbm ai eps raw dng cr2 cr3 crw nef "
     "nrw arw srf sr2 orf rw2 raf pef ptx srw x3f 3fr fff iiq mrw mef mos erf kdc "
     "dcr k25 rwl gpr dcs insp wbmp exr hdr xcf"},
    {WebCategory,
     "html htm xhtml mht mhtml css js mjs php asp aspx jsp xml json url webloc wasm "
     "shtml swf rss atom"},
    {ArchiveCategory,
     "zip rar 7z tar gz tgz bz2 tbz2 xz txz zst lz lzma lz4 cab arj lzh iso dmg z "
     "cpio jar war apk deb rpm ace sit sitx wim"},
};

QHash<QString, FileCategory> makeTable()
{
    QHash<QString, FileCategory> table;
    for (const Family &family : Families) {
        const QString words = QString::fromLatin1(family.extensions);
        const QStringList extensions = words.split(QLatin1Char(' '));
        for (const QString &extension : extensions)
            table.insert(extension, family.category);
    }
    return table;
}

} // namespace

QString extensionOf(const QString &fileName)
{
    const int dot = fileName.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? fileName.mid(dot + 1) : QString();
}

FileCategory categoryOfExtension(const QString &extension)
{
    static const QHash<QString, FileCategory> s_table = makeTable();
    return s_table.value(extension.toLower(), OtherCategory);
}

int rootTypeOfCategory(FileCategory category)
{
    switch (category) {
    case PhotoCategory:
        return 26;
    case VideoCategory:
    case CameraVideoCategory:
        return 11;
    case AudioCategory:
        return 10;
    case DocumentCategory:
        return 24;
    case EmailCategory:
        return 25;
    case DatabaseCategory:
        return 23;
    case WebCategory:
        return 27;
    case ArchiveCategory:
        return 9;
    case OtherCategory:
        break;
    }
    return 50;
}
