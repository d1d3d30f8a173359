#include <qwidget.h>
#define BRACES \
    {{
const char *raw = R"x( "quoted" } )" )x";
namespace outer::inner {
struct EXPORT("default") Panel final : QWidget, protected Hidden, virtual public Shown<QValueList<int> > {
    Q_OBJECT
    Q_ENUMS(Kind)
public:
    enum Kind { One, Two = 2 };
    Panel(QWidget *parent = 0) : QWidget(parent) { if (parent) { hide(); } }
    bool operator()(int) const;
    Panel &operator=(const Panel &);
    template <class T> T as() const { return T(); }
Q_SIGNALS:
    void changed(const QString &text, unsigned long long, struct Point at);
    void moved(QMap<int, QValueList<int> > &, char *const *);
    void nothing(void);
    void number(double, bool);
public slots:
    void show() {}
    virtual inline QString text(int index = 0, struct Point at = Point(1, 2), const char *name = "a,b") const = 0;
    typedef int Number;
protected Q_SLOTS:
    static void reset(int = 'x');
private slots:
    unsigned count();
private:
    int values[3] = {1, 2, 3};
} panel;
}
extern "C" { struct Plain { struct Inside {}; int (*f)(int[3]); }; }
class Last : public QObject
{
    Q_OBJECT
};
