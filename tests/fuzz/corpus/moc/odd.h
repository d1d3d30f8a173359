namespace n { template <class T> class C; /* comment " */ // more ' \
class D : public QWidget { Q_OBJECT
#if 0
#define X "\"(" 
#endif
protected slots: void a(int[3], ...); static const QString& b(void); }; } extern "C" { char c = '\''; }
