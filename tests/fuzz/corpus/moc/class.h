class A : public QObject, private B<int, 3> {
    Q_OBJECT
    Q_PROPERTY(int x READ x)
public slots:
    virtual void f(int a = 3, const char* (*g)(int) = 0) const;
    void operator()(unsigned long long& x);
signals:
    void changed(const QString&, QValueList<QMap<int, QString> >);
private:
    struct N : QObject { Q_OBJECT signals: void s(); };
};
