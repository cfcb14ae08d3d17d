#pragma once

/// The navigation tool that runs, as modules hand it on.
class CTool {
public:
    explicit CTool(int mode) : m_mode(mode) {}
    int mode() const { return m_mode; }
    void setMode(int mode) { m_mode = mode; }

private:
    int m_mode;
};
