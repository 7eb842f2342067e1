#include "types/KsLayer.h"

KsLayer::KsLayer(std::wstring name)
    : m_name(std::move(name))
{}
