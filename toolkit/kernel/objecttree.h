// Parents and children.
#ifndef ZELTK_OBJECTTREE_H
#define ZELTK_OBJECTTREE_H

class QObject;

namespace zeltk
{

// The list of objects without parent.
void addToTrees(QObject* object);
void removeFromTrees(QObject* object);

// Where a child stands among its parent's: stacked widgets are kept from the lowest to the highest.
void moveToFront(QObject* child);
void moveToBack(QObject* child);
// Right behind (above) the sibling, or before it.
void moveBefore(QObject* child, QObject* sibling);

} // namespace zeltk

#endif
