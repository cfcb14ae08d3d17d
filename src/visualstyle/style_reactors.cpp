#include "visualstyle/style_reactors.h"

#include "visualstyle/vs_dic_reactor.h"
#include "visualstyle/vs_obj_reactor.h"

#include <memory>

namespace {

/// An object that lives while it is counted.
template <class Object>
class Counted {
public:
    void acquire() {
        if (m_object == nullptr && m_count == 0)
            m_object = std::make_unique<Object>();
        ++m_count;
    }
    void release() {
        --m_count;
        if (m_count == 0)
            m_object.reset();
    }
    void clear() {
        m_object.reset();
        m_count = 0;
    }
    Object* get() const { return m_object.get(); }

private:
    std::unique_ptr<Object> m_object;
    int m_count = 0;
};

Counted<CVxDaVSObjReactor> s_objReactor;
Counted<CVxDaVSDicReactor> s_dicReactor;

}  // namespace

void acquireStyleReactors() {
    s_objReactor.acquire();
    s_dicReactor.acquire();
}

void releaseStyleReactors() {
    s_objReactor.release();
    s_dicReactor.release();
}

void deleteStyleReactors() {
    s_objReactor.clear();
    s_dicReactor.clear();
}

void updateVisualStyleState() {
    if (CVxDaVSObjReactor* reactor = s_objReactor.get())
        reactor->update();
}
