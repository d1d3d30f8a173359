// Sees what happens to the library's widgets, and tells whether they made of it what they should.
#ifndef MONKEY_WITNESS_H
#define MONKEY_WITNESS_H

#include <qobject.h>

#include <map>
#include <string>

class QWidget;

class Witness : public QObject
{
    Q_OBJECT

public:
    Witness();

    // A widget that is new.
    void meet(QWidget* widget);
    // What is wrong with one that was met, or an empty text.
    std::string broken(const QWidget* widget) const;

public slots:
    void numberChanged(int number);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Expected {
        unsigned pointer = 0; // over it: 1; the left button went down on it: 2
        int columns = 0;      // inside of the frame, when it was resized last
    };
    std::map<const QObject*, Expected> m_expected;
    std::string m_outOfRange;
};

#endif
