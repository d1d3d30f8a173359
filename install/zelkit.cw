<!DOCTYPE CW><CW>
<customwidgets>
    <customwidget>
        <class>ZelActiveLabel</class>
        <header location="global">zelactivelabel.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>clicked()</signal>
    </customwidget>
    <customwidget>
        <class>ZelActiveLabel2</class>
        <header location="global">zelactivelabel2.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>clicked()</signal>
        <signal>pressed()</signal>
    </customwidget>
    <customwidget>
        <class>ZelLabel</class>
        <header location="global">zellabel.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>mousePress(QMouseEvent*)</signal>
        <signal>mouseRelease(QMouseEvent*)</signal>
        <signal>mouseDoubleClick(QMouseEvent*)</signal>
        <signal>mouseMove(QMouseEvent*)</signal>
        <signal>clicked(ZelLabel*)</signal>
    </customwidget>
    <customwidget>
        <class>ZelColorButton</class>
        <header location="global">zelcolorbutton.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>clicked()</signal>
    </customwidget>
    <customwidget>
        <class>ZelPushButton</class>
        <header location="global">zelpushbutton.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
    </customwidget>
    <customwidget>
        <class>ZelPushButton2</class>
        <header location="global">zelpushbutton2.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>escapePressed()</signal>
    </customwidget>
    <customwidget>
        <class>ZelFrame</class>
        <header location="global">zelframe.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>1</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>mousePress(QMouseEvent*)</signal>
        <signal>mouseRelease(QMouseEvent*)</signal>
        <signal>mouseDoubleClick(QMouseEvent*)</signal>
        <signal>mouseMove(QMouseEvent*)</signal>
        <signal>mousePressEx(QMouseEvent*,ZelFrame*)</signal>
        <signal>mouseReleaseEx(QMouseEvent*,ZelFrame*)</signal>
        <signal>mouseDoubleClickEx(QMouseEvent*,ZelFrame*)</signal>
        <signal>mouseMoveEx(QMouseEvent*,ZelFrame*)</signal>
    </customwidget>
    <customwidget>
        <class>ZelEdge</class>
        <header location="global">zeledge.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>mousePress(QMouseEvent*)</signal>
        <signal>mouseRelease(QMouseEvent*)</signal>
        <signal>mouseMove(QMouseEvent*)</signal>
    </customwidget>
    <customwidget>
        <class>ZelLineEdit</class>
        <header location="global">zellineedit.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>leave(QEvent*)</signal>
        <signal>focusOut()</signal>
        <signal>escapePressed()</signal>
    </customwidget>
    <customwidget>
        <class>ZelComboBox</class>
        <header location="global">zelcombobox.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>leave()</signal>
        <signal>focusOut()</signal>
        <signal>escapePressed()</signal>
    </customwidget>
    <customwidget>
        <class>ZelLineEditInt</class>
        <header location="global">zellineeditint.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>valueChanged(int)</signal>
    </customwidget>
    <customwidget>
        <class>ZelGraph</class>
        <header location="global">zelgraph.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <signal>mousePress(QMouseEvent*)</signal>
        <signal>mouseRelease(QMouseEvent*)</signal>
        <signal>mouseDoubleClick(QMouseEvent*)</signal>
        <signal>mouseMove(QMouseEvent*)</signal>
        <signal>keyPress(QKeyEvent*)</signal>
        <slot access="public">setValue(int)</slot>
    </customwidget>
    <customwidget>
        <class>ZelColorDlg</class>
        <header location="global">colordlg.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <slot access="public">rEditChanged(int)</slot>
        <slot access="public">gEditChanged(int)</slot>
        <slot access="public">bEditChanged(int)</slot>
        <slot access="public">rScrollChanged(int)</slot>
        <slot access="public">gScrollChanged(int)</slot>
        <slot access="public">bScrollChanged(int)</slot>
    </customwidget>
    <customwidget>
        <class>ZelColorGroupDlg</class>
        <header location="global">colorgroupdlg.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <slot access="protected">foregroundColorClick(QMouseEvent*)</slot>
        <slot access="protected">backgroundColorClick(QMouseEvent*)</slot>
        <slot access="protected">lightColorClick(QMouseEvent*)</slot>
        <slot access="protected">darkColorClick(QMouseEvent*)</slot>
        <slot access="protected">midColorClick(QMouseEvent*)</slot>
        <slot access="protected">textColorClick(QMouseEvent*)</slot>
        <slot access="protected">baseColorClick(QMouseEvent*)</slot>
        <slot access="protected">shadowColorClick(QMouseEvent*)</slot>
        <slot access="protected">highlightColorClick(QMouseEvent*)</slot>
        <slot access="protected">highlightedTextColorClick(QMouseEvent*)</slot>
    </customwidget>
    <customwidget>
        <class>ZelFontDlg</class>
        <header location="global">fontdlg.h</header>
        <sizehint>
            <width>-1</width>
            <height>-1</height>
        </sizehint>
        <container>0</container>
        <sizepolicy>
            <hordata>5</hordata>
            <verdata>5</verdata>
        </sizepolicy>
        <slot access="public">familyActivated(int)</slot>
        <slot access="public">sizeActivated(int)</slot>
        <slot access="public">weightActivated(int)</slot>
        <slot access="public">italicClicked()</slot>
        <slot access="public">underlineClicked()</slot>
        <slot access="public">strikeoutClicked()</slot>
    </customwidget>
</customwidgets>
</CW>
