// The rows of the gallery, from top to bottom: one per class.
#ifndef ROWS_H
#define ROWS_H

class GalleryWindow;

typedef void (*AddRow)(GalleryWindow& gallery);

void addActiveLabelRow(GalleryWindow& gallery);
void addActiveLabel2Row(GalleryWindow& gallery);
void addLabelRow(GalleryWindow& gallery);
void addColorButtonRow(GalleryWindow& gallery);
void addPushButtonRow(GalleryWindow& gallery);
void addFrameRow(GalleryWindow& gallery);
void addFieldRow(GalleryWindow& gallery);
void addGraphRow(GalleryWindow& gallery);
void addDialogRow(GalleryWindow& gallery);

const AddRow galleryRows[] = {
    addActiveLabelRow, addActiveLabel2Row, addLabelRow, addColorButtonRow, addPushButtonRow,
    addFrameRow,       addFieldRow,        addGraphRow, addDialogRow,
};

#endif
