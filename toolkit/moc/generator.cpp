// Writes the code behind Q_OBJECT.
#include "generator.h"

namespace moc
{

namespace
{

const char* accessName(Access access)
{
    switch (access) {
    case Access::Private:
        return "Private";
    case Access::Protected:
        return "Protected";
    case Access::Public:
        break;
    }
    return "Public";
}

// How an argument is read back: through a pointer to what it refers to.
std::string readBack(const Argument& argument, size_t index)
{
    std::string type = argument.type;
    if (type.back() == '&')
        type.pop_back();
    return "*(" + type + "*)arguments[" + std::to_string(index) + "].value";
}

void writeTable(std::ostream& out, const char* name, const std::vector<Member>& members)
{
    if (members.empty())
        return;
    out << "    static const QMetaData " << name << "[] = {\n";
    for (const Member& member : members)
        out << "        {\"" << member.signature() << "\", QMetaData::" << accessName(member.access)
            << "},\n";
    out << "    };\n";
}

void writeMetaObject(std::ostream& out, const Class& c)
{
    out << "QMetaObject* " << c.name << "::metaObj = 0;\n"
        << "QMetaObjectCleanUp " << c.name << "::metaCleanUp(\"" << c.name << "\", &" << c.name
        << "::staticMetaObject);\n\n"
        << "QMetaObject* " << c.name << "::staticMetaObject()\n{\n"
        << "    if (metaObj)\n        return metaObj;\n";
    writeTable(out, "slotTable", c.slotList);
    writeTable(out, "signalTable", c.signalList);
    out << "    metaObj = new QMetaObject(\"" << c.name << "\", " << c.base << "::staticMetaObject(), "
        << (c.slotList.empty() ? "0" : "slotTable") << ", " << c.slotList.size() << ", "
        << (c.signalList.empty() ? "0" : "signalTable") << ", " << c.signalList.size()
        << ", 0, 0, 0, 0, 0, 0);\n"
        << "    metaCleanUp.setMetaObject(metaObj);\n    return metaObj;\n}\n\n";
}

void writeNames(std::ostream& out, const Class& c)
{
    out << "QMetaObject* " << c.name << "::metaObject() const\n{\n    return staticMetaObject();\n}\n\n"
        << "const char* " << c.name << "::className() const\n{\n    return \"" << c.name << "\";\n}\n\n"
        << "void* " << c.name << "::qt_cast(const char* className)\n{\n"
        << "    if (qstrcmp(className, \"" << c.name << "\") == 0)\n        return this;\n";
    for (const std::string& base : c.mixedIn)
        out << "    if (qstrcmp(className, \"" << base << "\") == 0)\n        return (" << base
            << "*)this;\n";
    out << "    return " << c.base << "::qt_cast(className);\n}\n\n";
}

void writeSignal(std::ostream& out, const Class& c, size_t index)
{
    const Member& member = c.signalList[index];
    out << "void " << c.name << "::" << member.name << "(";
    for (size_t i = 0; i < member.arguments.size(); ++i)
        out << (i > 0 ? ", " : "") << member.arguments[i].type << " a" << i;
    out << ")\n{\n";
    const std::string id = "staticMetaObject()->signalOffset() + " + std::to_string(index);
    if (member.arguments.empty()) {
        out << "    activate_signal(receivers(" << id << "), 0);\n}\n\n";
        return;
    }
    out << "    QConnectionList* list = receivers(" << id << ");\n    if (!list)\n        return;\n"
        << "    QUObject arguments[" << member.arguments.size() << "];\n";
    for (size_t i = 0; i < member.arguments.size(); ++i)
        out << "    arguments[" << i << "].value = &a" << i << ";\n";
    out << "    activate_signal(list, arguments);\n}\n\n";
}

void writeCalls(std::ostream& out, const Class& c, const char* function, const char* offset,
                const std::vector<Member>& members)
{
    out << "bool " << c.name << "::" << function << "(int id, QUObject* arguments)\n{\n";
    if (!members.empty()) {
        out << "    switch (id - staticMetaObject()->" << offset << "()) {\n";
        for (size_t i = 0; i < members.size(); ++i) {
            out << "    case " << i << ":\n        " << members[i].name << "(";
            for (size_t k = 0; k < members[i].arguments.size(); ++k)
                out << (k > 0 ? ", " : "") << readBack(members[i].arguments[k], k);
            out << ");\n        return true;\n";
        }
        out << "    default:\n        break;\n    }\n";
    }
    out << "    return " << c.base << "::" << function << "(id, arguments);\n}\n";
}

} // namespace

void generate(std::ostream& out, const std::string& inputName, const std::string& include,
              const std::vector<Class>& classes)
{
    out << "// Meta-object code of " << inputName
        << ", made by zeltk-moc. Changes are lost when it is made again.\n";
    if (!include.empty())
        out << "#include \"" << include << "\"\n";
    out << "#include <qmetaobject.h>\n";
    for (const Class& c : classes) {
        out << "\n";
        writeMetaObject(out, c);
        writeNames(out, c);
        for (size_t i = 0; i < c.signalList.size(); ++i)
            writeSignal(out, c, i);
        writeCalls(out, c, "qt_invoke", "slotOffset", c.slotList);
        out << "\n";
        writeCalls(out, c, "qt_emit", "signalOffset", c.signalList);
    }
}

} // namespace moc
