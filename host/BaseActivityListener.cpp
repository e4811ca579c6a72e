#include "host/BaseActivityListener.h"

BaseActivityListener::BaseActivityListener(QObject *parent)
    : QObject(parent)
{
}

BaseActivityListener::~BaseActivityListener() = default;

#include "moc_BaseActivityListener.cpp"
