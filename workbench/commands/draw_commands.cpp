#include "workbench/commands/draw_commands.h"

#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/editor/document.h"

#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

namespace workbench {

namespace {

using drawing::Current;
using drawing::Database;
using drawing::Entity;
using drawing::RecordKind;
using drawing::Vec3;

CommandState refusePoint(const CommandScope& scope, std::wstring_view answer) {
    return askAgain(scope, inQuotes(answer) + L" is no point: enter x,y or x,y,z.");
}

/// Adds a run of straight pieces on the current layer.
void addRun(Database& database, std::vector<Vec3> points) {
    Entity entity;
    entity.points = std::move(points);
    if (const auto* current = database.look<Current>(database.first(RecordKind::Current)))
        entity.layer = current->layer;
    database.add(entity);
}

/// Asks for points until Enter; each after the first adds a piece.
class LineCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        if (answer.empty())
            return CommandState::Ended;
        const std::optional<Vec3> point = parsePoint(answer);
        if (!point)
            return refusePoint(scope, answer);
        if (m_last)
            addRun(scope.document.data(), {*m_last, *point});
        m_last = point;
        return CommandState::Waiting;
    }

    std::wstring prompt() const override {
        return m_last ? L"Specify next point:" : L"Specify first point:";
    }

    bool asksForPoint() const override { return true; }

private:
    std::optional<Vec3> m_last;  // nothing: the first point is asked for
};

/// Asks for centre and radius; drawings have no arcs, so many short pieces stand for the circle.
class CircleCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        if (answer.empty())
            return CommandState::Cancelled;
        if (!m_centre) {
            m_centre = parsePoint(answer);
            return m_centre ? CommandState::Waiting : refusePoint(scope, answer);
        }
        const std::optional<double> radius = parseNumber(answer);
        if (!radius || *radius <= 0)
            return askAgain(scope,
                            inQuotes(answer) + L" is no radius: enter a number greater than 0.");
        addRun(scope.document.data(), circle(*m_centre, *radius));
        return CommandState::Ended;
    }

    std::wstring prompt() const override {
        return m_centre ? L"Specify radius of circle:" : L"Specify center point for circle:";
    }

    bool asksForPoint() const override { return !m_centre; }

private:
    static std::vector<Vec3> circle(const Vec3& centre, double radius) {
        constexpr int kPieces = 64;
        std::vector<Vec3> points;
        for (int i = 0; i <= kPieces; ++i) {
            // The run ends exactly where it began.
            const double angle = 2.0 * std::numbers::pi * (i % kPieces) / kPieces;
            points.push_back(centre +
                             Vec3{radius * std::cos(angle), radius * std::sin(angle), 0.0});
        }
        return points;
    }

    std::optional<Vec3> m_centre;  // nothing: it is asked for
};

}  // namespace

void addDrawCommands(CommandRegistry& registry) {
    addHostCommand<LineCommand>(registry, L"LINE", CommandTraits::Plain);
    addHostCommand<CircleCommand>(registry, L"CIRCLE", CommandTraits::Plain);
}

}  // namespace workbench
