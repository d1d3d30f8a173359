// QObject: signals and slots.
#include "kernel/objectdata.h"

#include <qmetaobject.h>

#include <algorithm>
#include <cctype>

using zeltk::Connection;
using zeltk::dataOf;
using zeltk::ObjectAccess;

namespace
{

enum Code { SlotCode = '1', SignalCode = '2' };

bool isWordCharacter(char c)
{
    return std::isalnum(static_cast<uchar>(c)) || c == '_';
}

void warnOfNames(const char* function, const QObject* sender, const QObject* receiver)
{
    qWarning("QObject::%s:  (sender name:   '%s')", function, sender->name());
    qWarning("QObject::%s:  (receiver name: '%s')", function, receiver->name());
}

// Says why a signal or slot of that form was not found.
void warnOfMember(const char* function, const char* kind, const QObject* owner, const std::string& signature)
{
    if (signature.find('(') == std::string::npos || signature.find(')') == std::string::npos)
        qWarning("QObject::%s: Parentheses expected, %s %s::%s", function, kind, owner->className(),
                 signature.c_str());
    else
        qWarning("QObject::%s: No such %s %s::%s", function, kind, owner->className(), signature.c_str());
}

std::string argumentsOf(const std::string& signature)
{
    const size_t open = signature.find('(');
    return signature.substr(open + 1, signature.size() - open - 2);
}

// The member may take the first of the signal's arguments, or none.
bool argumentsFit(const std::string& signal, const std::string& member)
{
    const std::string given = argumentsOf(signal);
    const std::string taken = argumentsOf(member);
    if (taken.empty() || given == taken)
        return true;
    return given.size() > taken.size() && given.compare(0, taken.size(), taken) == 0 &&
           given[taken.size()] == ',';
}

int findMember(const QObject* owner, char code, const std::string& signature)
{
    QMetaObject* meta = owner->metaObject();
    return code == SignalCode ? meta->findSignal(signature.c_str(), true)
                              : meta->findSlot(signature.c_str(), true);
}

const char* withoutCode(const char* member)
{
    return *member ? member + 1 : member;
}

// The number of a signal in the form that SIGNAL() gives it; -1 after a warning, which names the two objects
// if there is a receiver.
int signalNumber(const char* function, const char* verb, const QObject* sender, const QObject* receiver,
                 const std::string& signal)
{
    if (signal[0] != SignalCode) {
        qWarning("QObject::%s: Use the SIGNAL macro to %s %s::%s", function, verb, sender->className(),
                 signal.c_str());
        return -1;
    }
    const int number = findMember(sender, SignalCode, signal.substr(1));
    if (number < 0)
        warnOfMember(function, "signal", sender, signal.substr(1));
    if (number < 0 && receiver)
        warnOfNames(function, sender, receiver);
    return number;
}

// The same for what a signal is connected to.
int memberNumber(const char* function, const QObject* sender, const QObject* receiver,
                 const std::string& member)
{
    const char code = member[0];
    if (code != SlotCode && code != SignalCode) {
        qWarning("QObject::%s: Use the SLOT or SIGNAL macro to %s %s::%s", function, function,
                 receiver->className(), member.c_str());
        return -1;
    }
    const int number = findMember(receiver, code, member.substr(1));
    if (number < 0) {
        warnOfMember(function, code == SignalCode ? "signal" : "slot", receiver, member.substr(1));
        warnOfNames(function, sender, receiver);
    }
    return number;
}

void addConnection(QObject* sender, int signal, const Connection& connection)
{
    auto& lists = dataOf(sender)->signalLists;
    if (lists.size() <= static_cast<size_t>(signal))
        lists.resize(static_cast<size_t>(signal) + 1);
    std::shared_ptr<QConnectionList>& list = lists[static_cast<size_t>(signal)];
    if (!list) {
        list = std::make_shared<QConnectionList>();
        list->sender = sender;
        list->running = 0;
    }
    list->connections.push_back(connection);
    dataOf(connection.receiver)->senders.push_back(sender);
}

void forgetSender(QObject* receiver, QObject* sender)
{
    std::vector<QObject*>& senders = dataOf(receiver)->senders;
    const auto place = std::find(senders.begin(), senders.end(), sender);
    if (place != senders.end())
        senders.erase(place);
}

void dropMarked(QConnectionList* list)
{
    std::vector<Connection>& all = list->connections;
    all.erase(std::remove_if(all.begin(), all.end(), [](const Connection& c) { return !c.receiver; }),
              all.end());
}

// Cuts what fits; null and -1 stand for anything.
bool cut(QConnectionList* list, const QObject* receiver, int member, bool toSignal)
{
    bool found = false;
    for (Connection& connection : list->connections) {
        if (!connection.receiver || (receiver && connection.receiver != receiver))
            continue;
        if (member >= 0 && (connection.member != member || connection.toSignal != toSignal))
            continue;
        forgetSender(connection.receiver, list->sender);
        connection.receiver = nullptr;
        found = true;
    }
    if (list->running == 0)
        dropMarked(list);
    return found;
}

bool cutAll(QObject* sender, int signal, const QObject* receiver, int member, bool toSignal)
{
    bool found = false;
    const auto& lists = dataOf(sender)->signalLists;
    for (size_t i = 0; i < lists.size(); ++i)
        if (lists[i] && (signal < 0 || i == static_cast<size_t>(signal)))
            found = cut(lists[i].get(), receiver, member, toSignal) || found;
    return found;
}

void invoke(QConnectionList* list, const Connection& connection, QUObject* arguments)
{
    QObject* receiver = connection.receiver;
    zeltk::Invocation running = {list, false, dataOf(receiver)->invocation};
    dataOf(receiver)->invocation = &running;
    if (connection.toSignal)
        receiver->qt_emit(connection.member, arguments);
    else
        receiver->qt_invoke(connection.member, arguments);
    if (!running.receiverDied)
        dataOf(receiver)->invocation = running.outer;
}

} // namespace

namespace zeltk
{

std::string normalizedSignature(const char* signature)
{
    std::string result;
    bool blank = false;
    for (; *signature; ++signature) {
        if (std::isspace(static_cast<uchar>(*signature))) {
            blank = true;
            continue;
        }
        if (blank && !result.empty() && isWordCharacter(result.back()) && isWordCharacter(*signature))
            result += ' ';
        blank = false;
        result += *signature;
    }
    return result;
}

void cutConnections(QObject* object)
{
    ObjectData* data = dataOf(object);
    while (!data->senders.empty())
        QObject::disconnect(data->senders.front(), nullptr, object, nullptr);
    for (const auto& list : data->signalLists) {
        if (!list)
            continue;
        cut(list.get(), nullptr, -1, false);
        list->sender = nullptr;
    }
    data->signalLists.clear();
}

} // namespace zeltk

bool QObject::connect(const QObject* sender, const char* signal, const QObject* receiver, const char* member)
{
    if (!sender || !receiver || !signal || !member) {
        qWarning("QObject::connect: Cannot connect %s::%s to %s::%s", sender ? sender->className() : "(null)",
                 signal ? withoutCode(signal) : "(null)", receiver ? receiver->className() : "(null)",
                 member ? withoutCode(member) : "(null)");
        return false;
    }
    const std::string signalText = zeltk::normalizedSignature(signal);
    if (signalText[0] == SlotCode) {
        qWarning("QObject::connect: Attempt to bind non-signal %s::%s", sender->className(),
                 signalText.c_str() + 1);
        return false;
    }
    const int signalId = signalNumber("connect", "bind", sender, receiver, signalText);
    if (signalId < 0)
        return false;
    const std::string memberText = zeltk::normalizedSignature(member);
    const int memberId = memberNumber("connect", sender, receiver, memberText);
    if (memberId < 0)
        return false;
    if (!argumentsFit(signalText, memberText)) {
        qWarning("QObject::connect: Incompatible sender/receiver arguments\n\t%s::%s --> %s::%s",
                 sender->className(), signalText.c_str() + 1, receiver->className(), memberText.c_str() + 1);
        return false;
    }
    QObject* from = const_cast<QObject*>(sender);
    addConnection(from, signalId, {const_cast<QObject*>(receiver), memberId, memberText[0] == SignalCode});
    ObjectAccess::notifyConnect(from, signalText.c_str());
    return true;
}

bool QObject::disconnect(const QObject* sender, const char* signal, const QObject* receiver,
                         const char* member)
{
    if (!sender || (!receiver && member)) {
        qWarning("QObject::disconnect: Unexpected null parameter");
        return false;
    }
    const std::string signalText = signal ? zeltk::normalizedSignature(signal) : "";
    const int signalId = signal ? signalNumber("disconnect", "unbind", sender, nullptr, signalText) : -1;
    if (signal && signalId < 0)
        return false;
    const std::string memberText = member ? zeltk::normalizedSignature(member) : "";
    const int memberId = member ? memberNumber("disconnect", sender, receiver, memberText) : -1;
    if (member && memberId < 0)
        return false;
    QObject* from = const_cast<QObject*>(sender);
    if (!cutAll(from, signalId, receiver, memberId, memberText[0] == SignalCode))
        return false;
    ObjectAccess::notifyDisconnect(from, signal ? signalText.c_str() : nullptr);
    return true;
}

void QObject::connectNotify(const char*) {}

void QObject::disconnectNotify(const char*) {}

QConnectionList* QObject::receivers(const char* signal) const
{
    if (!signal)
        return nullptr;
    return receivers(metaObject()->findSignal(zeltk::normalizedSignature(signal).c_str(), true));
}

QConnectionList* QObject::receivers(int signal) const
{
    const auto& lists = d->signalLists;
    if (signal < 0 || static_cast<size_t>(signal) >= lists.size())
        return nullptr;
    QConnectionList* list = lists[static_cast<size_t>(signal)].get();
    return list && !list->connections.empty() ? list : nullptr;
}

void QObject::activate_signal(int signal)
{
    activate_signal(receivers(signal), nullptr);
}

// Receivers that are connected meanwhile are called too; those that are cut off or die are not. The sender
// may die.
void QObject::activate_signal(QConnectionList* list, QUObject* arguments)
{
    if (!list || d->blocked)
        return;
    const std::shared_ptr<QConnectionList> alive = list->shared_from_this();
    ++list->running;
    for (size_t i = 0; i < list->connections.size(); ++i) {
        const Connection connection = list->connections[i];
        if (connection.receiver)
            invoke(list, connection, arguments);
    }
    if (--list->running == 0)
        dropMarked(list);
}

const QObject* QObject::sender()
{
    return d->invocation ? d->invocation->list->sender : nullptr;
}
