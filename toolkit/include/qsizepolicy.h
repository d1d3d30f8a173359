// How a widget would like to be resized.
#ifndef QSIZEPOLICY_H
#define QSIZEPOLICY_H

#include <qglobal.h>

//! What a widget's size hint means, for each direction, and how the widget shares room with others.
class Q_EXPORT QSizePolicy
{
    enum { HSize = 6, HMask = 0x3f, VMask = HMask << HSize, MayGrow = 1, ExpMask = 2, MayShrink = 4 };

public:
    enum SizeType {
        Fixed = 0,
        Minimum = MayGrow,
        Maximum = MayShrink,
        Preferred = MayGrow | MayShrink,
        MinimumExpanding = Minimum | ExpMask,
        Expanding = MinimumExpanding | MayShrink,
        Ignored = ExpMask
    };
    enum ExpandData {
        NoDirection = 0,
        Horizontally = 1,
        Vertically = 2,
        Horizontal = Horizontally,
        Vertical = Vertically,
        BothDirections = Horizontally | Vertically
    };

    QSizePolicy() : data(0) {}
    QSizePolicy(SizeType hor, SizeType ver, bool hfw = false)
        : data((Q_UINT32)hor | (Q_UINT32)ver << HSize | (hfw ? hfwBit : 0))
    {
    }
    QSizePolicy(SizeType hor, SizeType ver, uchar hors, uchar vers, bool hfw = false)
        : data((Q_UINT32)hor | (Q_UINT32)ver << HSize | (hfw ? hfwBit : 0) | (Q_UINT32)hors << 16 |
               (Q_UINT32)vers << 24)
    {
    }

    SizeType horData() const { return (SizeType)(data & HMask); }
    SizeType verData() const { return (SizeType)((data & VMask) >> HSize); }
    void setHorData(SizeType type) { data = (data & ~(Q_UINT32)HMask) | type; }
    void setVerData(SizeType type) { data = (data & ~(Q_UINT32)VMask) | (Q_UINT32)type << HSize; }

    bool mayShrinkHorizontally() const { return ((int)horData() & MayShrink) || horData() == Ignored; }
    bool mayShrinkVertically() const { return ((int)verData() & MayShrink) || verData() == Ignored; }
    bool mayGrowHorizontally() const { return ((int)horData() & MayGrow) || horData() == Ignored; }
    bool mayGrowVertically() const { return ((int)verData() & MayGrow) || verData() == Ignored; }
    ExpandData expanding() const
    {
        return (ExpandData)(((int)horData() & ExpMask ? Horizontally : 0) |
                            ((int)verData() & ExpMask ? Vertically : 0));
    }

    //! The best height depends on the width.
    bool hasHeightForWidth() const { return (data & hfwBit) != 0; }
    void setHeightForWidth(bool depends) { data = depends ? data | hfwBit : data & ~(Q_UINT32)hfwBit; }

    uint horStretch() const { return data >> 16 & 0xff; }
    uint verStretch() const { return data >> 24; }
    void setHorStretch(uchar stretch) { data = (data & 0xff00ffffu) | (Q_UINT32)stretch << 16; }
    void setVerStretch(uchar stretch) { data = (data & 0x00ffffffu) | (Q_UINT32)stretch << 24; }
    void transpose();

    bool operator==(const QSizePolicy& other) const { return data == other.data; }
    bool operator!=(const QSizePolicy& other) const { return data != other.data; }

private:
    enum { hfwBit = 1 << 2 * HSize };

    Q_UINT32 data;
};

inline void QSizePolicy::transpose()
{
    *this = QSizePolicy(verData(), horData(), (uchar)verStretch(), (uchar)horStretch(), hasHeightForWidth());
}

#endif
