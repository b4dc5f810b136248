#include "detail/metadatatitles.h"

#include <array>

namespace {

struct Title
{
    const char *id;
    const char *key;
};

// The order here is the order in the pane: what was shot with first, then how.
constexpr std::array<Title, 10> s_metadata{{
    {"make", "camera_brand"},
    {"model", "model"},
    {"isoSpeed", "iso_speed"},
    {"exposureTime", "exposure_time"},
    {"fNumber", "f_number"},
    {"focalLength", "focal_length"},
    {"whiteBalance", "white_balance"},
    {"software", "software"},
    {"frameRate", "frame_rate"},
    {"bitRate", "bit_rate"},
}};

// Several tags are worded differently from their scene: that is what users call them.
constexpr std::array<Title, 26> s_scenes{{
    {"mountain", "ai_tags_landscape"},
    {"beach", "ai_tags_beach"},
    {"city_street", "ai_tags_cityscape"},
    {"hotel_room", "ai_tags_hotel"},
    {"aerial", "ai_tags_aerial"},
    {"child", "ai_tags_children"},
    {"pet", "ai_tags_pet"},
    {"birthday", "ai_tags_birthday"},
    {"gathering", "ai_tags_dinner"},
    {"concert", "ai_tags_performance"},
    {"exhibition", "ai_tags_exhibition"},
    {"sports", "ai_tags_sports"},
    {"graduation", "ai_tags_graduation"},
    {"wedding", "ai_tags_wedding_dress"},
    {"bouquet", "ai_tags_bouquet"},
    {"food", "ai_tags_food"},
    {"meeting_room", "ai_tags_meeting_room"},
    {"presentation", "ai_tags_presentation"},
    {"whiteboard", "ai_tags_whiteboard"},
    {"product", "ai_tags_product"},
    {"selfie", "ai_tags_selfie"},
    {"group_photo", "ai_tags_group_photo"},
    {"id_photo", "ai_tags_id_photo"},
    {"document", "ai_tags_paper_document"},
    {"certificate", "ai_tags_identity_document"},
    {"chat_screenshot", "ai_tags_chat_screenshot"},
}};

template <size_t Size>
int indexOf(const std::array<Title, Size> &titles, const QString &id)
{
    for (size_t i = 0; i < Size; ++i) {
        if (id == QLatin1String(titles[i].id))
            return int(i);
    }
    return -1;
}

template <size_t Size>
QString keyOf(const std::array<Title, Size> &titles, const QString &id)
{
    const int index = indexOf(titles, id);
    return index < 0 ? QString() : QString::fromLatin1(titles[size_t(index)].key);
}

} // namespace

namespace MetadataTitles {

QString titleKey(const QString &metadataKey)
{
    return keyOf(s_metadata, metadataKey);
}

int order(const QString &metadataKey)
{
    const int index = indexOf(s_metadata, metadataKey);
    return index < 0 ? int(s_metadata.size()) : index;
}

bool hasOwnRow(const QString &metadataKey)
{
    return metadataKey == QLatin1String("Resolution") || metadataKey == QLatin1String("aiSceneTag");
}

QString sceneTagKey(const QString &sceneId)
{
    return keyOf(s_scenes, sceneId);
}

} // namespace MetadataTitles
