#include "workbench/desktop/app/desktop_state.h"

#include "workbench/base/input_error.h"
#include "workbench/desktop/look/text.h"
#include "workbench/toolkit/shade.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace workbench::desktop {

namespace {

constexpr QLatin1String kShade("theme");
constexpr QLatin1String kRolledUp("rolledUpPanels");
constexpr QLatin1String kLastFolder("lastFolder");

QString fileIn(const std::filesystem::path& folder) {
    return toQt(std::string_view((folder / "desktop.json").string()));
}

}  // namespace

bool DesktopState::exists(const std::filesystem::path& folder) {
    return QFile::exists(fileIn(folder));
}

DesktopState DesktopState::read(const std::filesystem::path& folder, QString& complaint) {
    DesktopState state;
    QFile file(fileIn(folder));
    if (!file.exists())
        return state;
    file.open(QIODevice::ReadOnly);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        complaint = file.fileName() + QStringLiteral(": ") +
                    (error.error == QJsonParseError::NoError ? QStringLiteral("not an object")
                                                             : error.errorString());
        return state;
    }
    const QJsonObject members = document.object();
    if (members.contains(kShade)) {
        const std::string name = members[kShade].toString().toStdString();
        state.shade = shadeOf(name);
        if (!state.shade) {
            state.unknownTheme = name;
            complaint = file.fileName() + QStringLiteral(": /theme: light or dark");
        }
    }
    for (const QJsonValue& id : members[kRolledUp].toArray())
        state.rolledUp.push_back(toHost(id.toString()));
    state.lastFolder = members[kLastFolder].toString().toStdString();
    return state;
}

void DesktopState::write(const std::filesystem::path& folder) const {
    QJsonArray ids;
    for (const std::wstring& id : rolledUp)
        ids.append(toQt(id));
    QJsonObject members{{kRolledUp, ids}};
    if (!lastFolder.empty())
        members.insert(kLastFolder, toQt(std::string_view(lastFolder.string())));
    if (shade)
        members.insert(kShade, QLatin1String(nameOf(*shade)));
    else if (!unknownTheme.empty())
        members.insert(kShade, toQt(std::string_view(unknownTheme)));
    QSaveFile file(fileIn(folder));
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(QJsonDocument(members).toJson()) > 0 && file.commit();
    if (!written)
        throw InputError(file.fileName().toStdString(), "the window's state can't be written");
}

}  // namespace workbench::desktop
