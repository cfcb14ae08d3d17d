#include "workbench/menu/menu_item_reader.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace workbench {

namespace {

/// "image" stands for both sizes; "smallImage" and "largeImage" set one each.
void readImages(const JsonObjectView& object, MenuItem& item) {
    const std::optional<JsonView> image = object.find("image");
    const std::optional<JsonView> smallImage = object.find("smallImage");
    const std::optional<JsonView> largeImage = object.find("largeImage");
    if (image && (smallImage || largeImage))
        image->fail("stands for both sizes: leave out \"smallImage\" and \"largeImage\"");
    if (image)
        item.smallImage = item.largeImage = image->name();
    if (smallImage)
        item.smallImage = smallImage->name();
    if (largeImage)
        item.largeImage = largeImage->name();
}

void readButton(const JsonView& view, MenuItem& item) {
    const JsonObjectView object =
        view.object({"type", "id", "name", "image", "smallImage", "largeImage", "macro", "module"});
    item.id = object.at("id").name();
    item.name = object.stringOr("name");
    item.macro = object.stringOr("macro");
    item.module = object.stringOr("module");
    readImages(object, item);
}

void readFlyout(const JsonView& view, MenuItem& item) {
    const JsonObjectView object = view.object(
        {"type", "id", "name", "image", "smallImage", "largeImage", "flyout", "ownImage"});
    item.id = object.at("id").name();
    item.name = object.stringOr("name");
    item.flyoutId = object.at("flyout").name();
    if (const std::optional<JsonView> ownImage = object.find("ownImage"))
        item.flyoutOwnImage = ownImage->boolean();
    readImages(object, item);
}

void readControl(const JsonView& view, MenuItem& item) {
    const JsonObjectView object = view.object({"type", "id", "name", "control", "module"});
    item.controlName = object.at("control").name();
    const std::optional<JsonView> id = object.find("id");
    item.id = id ? id->name() : item.controlName;
    item.name = object.stringOr("name");
    item.module = object.stringOr("module");
}

void readSpacer(const JsonView& view, MenuItem&) {
    view.object({"type"});
}

struct ItemKind {
    std::string_view word;
    MenuItemType type;
    void (*read)(const JsonView& view, MenuItem& item);
};

constexpr std::array<ItemKind, 5> kItemKinds{{
    {"button", MenuItemType::Button, readButton},
    {"flyout", MenuItemType::Flyout, readFlyout},
    {"control", MenuItemType::Control, readControl},
    {"separator", MenuItemType::Separator, readSpacer},
    {"rowBreak", MenuItemType::RowBreak, readSpacer},
}};

}  // namespace

MenuItem readMenuItem(const JsonView& view) {
    const JsonView type = view.object().at("type");
    const std::string& word = type.string();
    for (const ItemKind& kind : kItemKinds) {
        if (kind.word != word)
            continue;
        MenuItem item;
        item.type = kind.type;
        kind.read(view, item);
        return item;
    }
    type.fail("unknown item type " + inQuotes(word));
}

}  // namespace workbench
