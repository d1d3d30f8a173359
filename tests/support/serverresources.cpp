#include "serverresources.h"

#include "xinput.h"

#include <vector>

#include <X11/Xlib.h>
#include <X11/Xlibint.h>

namespace
{

// The extension's second version is not needed for this request, and neither is its library.
struct QueryRequest {
    CARD8 reqType;
    CARD8 minor;
    CARD16 length;
    CARD32 xid;
};
const int queryClientResources = 2;

struct QueryReply {
    CARD8 type;
    CARD8 pad;
    CARD16 sequenceNumber;
    CARD32 length;
    CARD32 numTypes;
    CARD32 pads[5];
};

struct TypeCount {
    CARD32 type;
    CARD32 count;
};

std::vector<TypeCount> query(Display* dpy, CARD8 opcode, unsigned long window)
{
    std::vector<TypeCount> counts;
    LockDisplay(dpy);
    QueryRequest* request = static_cast<QueryRequest*>(_XGetRequest(dpy, opcode, sizeof(QueryRequest)));
    request->minor = queryClientResources;
    request->xid = static_cast<CARD32>(window);
    QueryReply reply;
    if (_XReply(dpy, reinterpret_cast<xReply*>(&reply), 0, xFalse)) {
        counts.resize(reply.numTypes);
        if (!counts.empty())
            _XRead(dpy, reinterpret_cast<char*>(counts.data()),
                   static_cast<long>(counts.size() * sizeof(TypeCount)));
    }
    UnlockDisplay(dpy);
    SyncHandle();
    return counts;
}

} // namespace

std::map<std::string, unsigned> serverResources(unsigned long window)
{
    std::map<std::string, unsigned> result;
    Display* display = xinput::display();
    int opcode = 0;
    int event = 0;
    int error = 0;
    if (!XQueryExtension(display, "X-Resource", &opcode, &event, &error))
        return result;
    for (const TypeCount& each : query(display, static_cast<CARD8>(opcode), window)) {
        char* name = XGetAtomName(display, each.type);
        result[name ? name : "?"] = each.count;
        XFree(name);
    }
    return result;
}
