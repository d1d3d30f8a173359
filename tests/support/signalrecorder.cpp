#include "signalrecorder.h"

#include <gtest/gtest.h>

#include <cstring>

SignalNote::SignalNote(QObject* parent, const std::string& label, std::vector<std::string>* log,
                       std::function<void()>* whenever)
    : QObject(parent), m_label(label), m_log(log), m_whenever(whenever)
{
}

void SignalNote::note(const std::string& arguments)
{
    m_log->push_back(m_label + arguments);
    if (*m_whenever)
        (*m_whenever)();
}

void SignalNote::none()
{
    note("");
}

void SignalNote::number(int value)
{
    note("(" + std::to_string(value) + ")");
}

void SignalNote::flag(bool value)
{
    note(value ? "(true)" : "(false)");
}

void SignalNote::text(const QString& value)
{
    note("(" + std::string(value.utf8().data() ? value.utf8().data() : "") + ")");
}

void SignalRecorder::watch(QObject* sender, const char* signal, const char* label)
{
    const char* const bracket = std::strchr(signal, '(');
    const std::string name = label ? label : std::string(signal + 1, bracket);
    const char* slot = SLOT(none());
    if (std::strstr(signal, "(int"))
        slot = SLOT(number(int));
    else if (std::strstr(signal, "(bool"))
        slot = SLOT(flag(bool));
    else if (std::strstr(signal, "(const QString&"))
        slot = SLOT(text(const QString&));
    SignalNote* const note = new SignalNote(&m_notes, name, &m_log, &whenever);
    EXPECT_TRUE(QObject::connect(sender, signal, note, slot)) << "no signal " << signal;
}

std::string SignalRecorder::take()
{
    std::string all;
    for (const std::string& entry : m_log)
        all += (all.empty() ? "" : " ") + entry;
    m_log.clear();
    return all;
}
