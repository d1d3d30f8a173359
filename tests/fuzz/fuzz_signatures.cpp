// Signatures of signals and slots as text: any bytes, for connecting, disconnecting and looking up.
#include <qmetaobject.h>
#include <qobject.h>

#include <cstdint>
#include <string>

static void ignoreMessages(QtMsgType, const char*) {}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qInstallMsgHandler(ignoreMessages);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string all(reinterpret_cast<const char*>(data), size);
    const std::string first = all.substr(0, all.find('\n'));
    const std::string second = all.size() > first.size() ? all.substr(first.size() + 1) : "1deleteLater()";
    QObject sender, receiver;
    QObject::connect(&sender, first.c_str(), &receiver, second.c_str());
    QObject::connect(&sender, SIGNAL(destroyed(QObject*)), &receiver, second.c_str());
    QObject::connect(&sender, first.c_str(), &receiver, SLOT(deleteLater()));
    QObject::disconnect(&sender, first.c_str(), &receiver, second.c_str());
    sender.metaObject()->findSignal(first.c_str(), true);
    sender.metaObject()->findSlot(second.c_str(), true);
    return 0;
}
