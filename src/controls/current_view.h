#pragma once

class VxGsClassFactory;
class VxGsView;

/// The view of a viewport while this lives: the live one, which is the host's, or else a temporary
/// one that ends with this.
class CurrentView {
public:
    explicit CurrentView(int viewportNumber);
    CurrentView(const CurrentView&) = delete;
    CurrentView& operator=(const CurrentView&) = delete;
    ~CurrentView();

    /// The view; null if none could be had.
    VxGsView* get() const { return m_view; }

private:
    VxGsView* m_view = nullptr;
    VxGsClassFactory* m_factory = nullptr;  // of a temporary view; not owned
};
