#include "visualstyle/style_reactors.h"

#include "visualstyle/vs_obj_reactor.h"

#include <memory>

namespace {

std::unique_ptr<CVxDaVSObjReactor> s_reactor;
int s_users = 0;

}  // namespace

void acquireStyleReactors() {
    if (s_reactor == nullptr && s_users == 0)
        s_reactor = std::make_unique<CVxDaVSObjReactor>();
    ++s_users;
}

void releaseStyleReactors() {
    --s_users;
    if (s_users == 0)
        s_reactor.reset();
}

void deleteStyleReactors() {
    s_reactor.reset();
    s_users = 0;
}

void updateVisualStyleState() {
    if (s_reactor != nullptr)
        s_reactor->update();
}
