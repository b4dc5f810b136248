#include "host/media/program/scenewords.h"

#include <QHash>
#include <QRegularExpression>

namespace {

struct Scene
{
    const char *id;
    const char *words; // in the singular, a comma between
};

constexpr Scene Scenes[] = {
    {"mountain",
     "landscape,scenery,hill,peak,summit,alps,valley,canyon,glacier,volcano,waterfall,forest,wood,"
     "meadow,desert,nature,snowy mountain,mountain landscape"},
    {"beach", "sea,ocean,coast,seaside,seashore,shore,shoreline,island,lagoon,surf,sandy beach"},
    {"city_street",
     "city,street,cityscape,town,skyline,downtown,urban,avenue,alley,boulevard,street photography,"
     "old town,skyscraper"},
    {"hotel_room", "hotel,guest room,hostel,resort,bedroom"},
    {"aerial",
     "aerial view,aerial photo,aerial photography,drone,drone photo,bird's eye view,from above"},
    {"child", "kid,baby,toddler,infant,newborn,boy,girl,children,son,daughter"},
    {"pet",
     "dog,cat,puppy,kitten,rabbit,hamster,guinea pig,parrot,budgie,goldfish,kitty,doggy,tomcat"},
    {"birthday", "birthday party,birthday cake,birthday celebration"},
    {"gathering",
     "dinner,party,feast,banquet,reunion,get together,family dinner,barbecue,bbq,dinner party,"
     "celebration,gathering of friends"},
    {"concert",
     "performance,gig,live music,orchestra,theatre,theater,opera,ballet,recital,band,stage"},
    {"exhibition", "museum,gallery,art gallery,exhibit,expo,trade fair,trade show,exposition"},
    {"sports",
     "sport,football,soccer,basketball,volleyball,tennis,baseball,hockey,rugby,golf,running,"
     "marathon,swimming,cycling,skiing,snowboarding,surfing,athletics,gymnastics,yoga,gym,"
     "fitness,stadium"},
    {"graduation", "graduate,commencement,graduation ceremony,graduation day"},
    {"wedding", "bride,groom,bridal,wedding dress,marriage,wedding day,wedding party"},
    {"bouquet", "flower,rose,tulip,blossom,cherry blossom,orchid,daisy,sunflower,flower bouquet"},
    {"food",
     "meal,dish,lunch,breakfast,brunch,supper,dessert,cake,fruit,vegetable,pizza,pasta,coffee,"
     "cooking,cuisine,restaurant,snack,drink"},
    {"meeting_room", "meeting,conference room,boardroom,conference,board room"},
    {"presentation", "slide,slideshow,lecture,keynote,talk,powerpoint"},
    {"whiteboard", "blackboard,flip chart,flipchart,chalkboard"},
    {"product", "product photo,product photography,packshot,merchandise"},
    {"selfie", "self portrait,selfy"},
    {"group_photo", "group,group picture,group portrait,family photo,class photo,team photo,team"},
    {"id_photo", "passport photo,id picture,passport picture,headshot"},
    {"document", "paper,paper document,letter,receipt,invoice,contract,scan,paperwork,bill"},
    {"certificate",
     "diploma,id card,identity card,passport,driving licence,driver's license,driving license,"
     "identity document,licence,license"},
    {"chat_screenshot", "chat,conversation,messenger,chat history,text message"},
};

QString normal(const QString &word)
{
    QString spaced = word.toLower();
    for (QChar &c : spaced) {
        if (c == QLatin1Char('_') || c == QLatin1Char('-'))
            c = QLatin1Char(' ');
        else if (c == QChar(0x2019))
            c = QLatin1Char('\'');
    }
    return spaced.simplified();
}

QHash<QString, QString> makeTable()
{
    QHash<QString, QString> table;
    for (const Scene &scene : Scenes) {
        const QString id = QString::fromLatin1(scene.id);
        table.insert(normal(id), id);
        const QString words = QString::fromLatin1(scene.words);
        const QStringList list = words.split(QLatin1Char(','));
        for (const QString &word : list)
            table.insert(word, id);
    }
    return table;
}

QString sceneOf(const QString &word)
{
    static const QHash<QString, QString> s_table = makeTable();
    const struct
    {
        const char *plural;
        const char *singular;
    } endings[] = {{"", ""}, {"s", ""}, {"es", ""}, {"ies", "y"}};
    for (const auto &ending : endings) {
        if (!word.endsWith(QLatin1String(ending.plural)))
            continue;
        const int stem = word.size() - int(qstrlen(ending.plural));
        const QString id = s_table.value(word.left(stem) + QLatin1String(ending.singular));
        if (!id.isEmpty())
            return id;
    }
    return QString();
}

} // namespace

QStringList SceneWords::scenesOf(const QStringList &keywords)
{
    static const QRegularExpression s_steps(QStringLiteral("[|/;,]"));
    QStringList scenes;
    for (const QString &keyword : keywords) {
        const QStringList steps = keyword.split(s_steps);
        for (const QString &step : steps) {
            const QString scene = sceneOf(normal(step));
            if (!scene.isEmpty() && !scenes.contains(scene))
                scenes.append(scene);
        }
    }
    return scenes;
}
