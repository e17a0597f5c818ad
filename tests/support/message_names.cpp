// Names of messages and notifications. Add a new one to the list of its family.
#include "support/message_names.h"

#include <widgets/widgets.h>

#include <cstdio>
#include <cstring>
#include <span>

namespace {

struct Named {
    UINT        number;
    const char* name;
};

#define N(name)                                                                                                        \
    Named                                                                                                              \
    {                                                                                                                  \
        name, #name                                                                                                    \
    }

// clang-format off
constexpr Named platformMessages[] = {
    N(WM_NULL), N(WM_CREATE), N(WM_DESTROY), N(WM_MOVE), N(WM_SIZE), N(WM_ACTIVATE), N(WM_SETFOCUS), N(WM_KILLFOCUS),
    N(WM_ENABLE), N(WM_SETREDRAW), N(WM_SETTEXT), N(WM_GETTEXT), N(WM_GETTEXTLENGTH), N(WM_PAINT), N(WM_CLOSE),
    N(WM_QUIT), N(WM_ERASEBKGND), N(WM_SYSCOLORCHANGE), N(WM_SHOWWINDOW), N(WM_SETTINGCHANGE), N(WM_ACTIVATEAPP),
    N(WM_FONTCHANGE), N(WM_CANCELMODE), N(WM_SETCURSOR), N(WM_MOUSEACTIVATE), N(WM_CHILDACTIVATE),
    N(WM_GETMINMAXINFO), N(WM_SETFONT), N(WM_GETFONT), N(WM_WINDOWPOSCHANGING), N(WM_WINDOWPOSCHANGED), N(WM_NOTIFY),
    N(WM_HELP), N(WM_CONTEXTMENU), N(WM_STYLECHANGING), N(WM_STYLECHANGED), N(WM_NCCREATE), N(WM_NCDESTROY),
    N(WM_NCCALCSIZE), N(WM_NCHITTEST), N(WM_NCPAINT), N(WM_NCACTIVATE), N(WM_GETDLGCODE), N(WM_NCMOUSEMOVE),
    N(WM_NCLBUTTONDOWN), N(WM_NCLBUTTONUP), N(WM_KEYDOWN), N(WM_KEYUP), N(WM_CHAR), N(WM_DEADCHAR), N(WM_SYSKEYDOWN),
    N(WM_SYSKEYUP), N(WM_SYSCHAR), N(WM_INITDIALOG), N(WM_COMMAND), N(WM_SYSCOMMAND), N(WM_TIMER), N(WM_HSCROLL),
    N(WM_VSCROLL), N(WM_CTLCOLOREDIT), N(WM_CTLCOLORLISTBOX), N(WM_CTLCOLORBTN), N(WM_CTLCOLORDLG),
    N(WM_CTLCOLORSCROLLBAR), N(WM_CTLCOLORSTATIC), N(WM_MOUSEMOVE), N(WM_LBUTTONDOWN), N(WM_LBUTTONUP),
    N(WM_LBUTTONDBLCLK), N(WM_RBUTTONDOWN), N(WM_RBUTTONUP), N(WM_RBUTTONDBLCLK), N(WM_MBUTTONDOWN), N(WM_MBUTTONUP),
    N(WM_MOUSEWHEEL), N(WM_PARENTNOTIFY), N(WM_CAPTURECHANGED), N(WM_IME_SETCONTEXT), N(WM_IME_NOTIFY), N(WM_CUT),
    N(WM_COPY), N(WM_PASTE), N(WM_CLEAR), N(WM_UNDO),
};

constexpr Named commonMessages[] = {
    N(WWM_GETCHANGED), N(WWM_SETCHANGED), N(WWM_SETUPDATING), N(WWM_GETUPDATING), N(WWM_CHILDFOCUS), N(WWM_CHILDBLUR),
    N(WWM_GETSTATE), N(WWM_SETSTATE), N(WWM_GETPARENT), N(WWM_SETPARENT), N(WWM_GETSTYLE), N(WWM_SETSTYLE),
    N(WWM_CANCEL), N(WWM_ISNULL),
};

constexpr Named gridMessages[] = {
    N(HGM_GETBKBRUSH), N(HGM_SETBKBRUSH), N(HGM_GETBANDS), N(HGM_SETBANDS), N(HGM_GETFIELDBAND), N(HGM_SETFIELDBAND),
    N(HGM_SETDATA), N(HGM_GETDATA), N(HGM_RESET), N(HGM_REFRESH), N(HGM_GETHEADERHEIGHT), N(HGM_SETHEADERHEIGHT),
    N(HGM_GETROWHDRWIDTH), N(HGM_SETROWHDRWIDTH), N(HGM_GETROWHEIGHT), N(HGM_SETROWHEIGHT), N(HGM_GETCOLCOUNT),
    N(HGM_GETROWCOUNT), N(HGM_GETFIRSTCOL), N(HGM_SETFIRSTCOL), N(HGM_GETTOPRECORD), N(HGM_SETTOPRECORD),
    N(HGM_GETFIXEDCOLS), N(HGM_SETFIXEDCOLS), N(HGM_GETANCHOR), N(HGM_SETANCHOR), N(HGM_GETCURSOR), N(HGM_SETCURSOR),
    N(HGM_GETFLAGS), N(HGM_SETFLAGS), N(HGM_GETTITLE), N(HGM_SETTITLE), N(HGM_ADDFIELD), N(HGM_DELETEFIELD),
    N(HGM_INSERTFIELD), N(HGM_MOVEFIELD), N(HGM_ADDROW), N(HGM_DELETEROW), N(HGM_INSERTROW), N(HGM_MOVEROW),
    N(HGM_GETROWBASE), N(HGM_SETROWBASE), N(HGM_READCURROW), N(HGM_FINDFIELD), N(HGM_GETCOLORDER), N(HGM_SETCOLORDER),
    N(HGM_GETROWSOURCE), N(HGM_SETROWSOURCE), N(HGM_GETTOTAL), N(HGM_SETTOTAL), N(HGM_GETHELD), N(HGM_SETHELD),
    N(HGM_SETSTYLEBITS), N(HGM_COLTOPOS), N(HGM_POSTOCOL), N(HGM_RECORDTOROW), N(HGM_GETPROPOSED), N(HGM_SETPROPOSED),
    N(HGM_GETHPOS), N(HGM_GETVPOS), N(HGM_SETHPOS), N(HGM_SETVPOS), N(HGM_GETVMAX), N(HGM_GETHMAX), N(HGM_GETSELROWS),
    N(HGM_GETSELCOUNT), N(HGM_TOGGLEROW), N(HGM_KEYFIRST), N(HGM_KEYLAST), N(HGM_KEYNEW), N(HGM_KEYUP),
    N(HGM_KEYDOWN), N(HGM_GETROWFLAGS), N(HGM_SETROWFLAGS), N(HGM_READROW), N(HGM_WRITEROW), N(HGM_GETROWMIRROR),
    N(HGM_SETROWMIRROR), N(HGM_GETROWSIZE), N(HGM_ISROWSELECTED), N(HGM_SETSORTCOL), N(HGM_SETSORTCOL2),
    N(HGM_GOTORECORD), N(HGM_RECALC), N(HGM_SORT), N(HGM_GETROWPTR), N(HGM_GETFIELDCHILD), N(HGM_GETFIELDSTYLE),
    N(HGM_GETFIELDKIND), N(HGM_GETFIELDCLASS2), N(HGM_GETFIELDTYPE2), N(HGM_GETFIELDCLASS), N(HGM_GETFIELDSIZE),
    N(HGM_GETFIELDTYPE), N(HGM_GETFIELDFORMAT), N(HGM_SETFIELDFORMAT), N(HGM_GETFIELDFORMATLEN), N(HGM_GETFIELDTITLE),
    N(HGM_GETFIELDTITLELEN), N(HGM_SETFIELDTITLE), N(HGM_GETFIELDWIDTH), N(HGM_SETFIELDWIDTH), N(HGM_GETFIELDDROP),
    N(HGM_SETFIELDDROP), N(HGM_GETFIELDFLAGS), N(HGM_SETFIELDFLAGS), N(HGM_GETFIELDOFFSET), N(HGM_GETFIELDRESERVED),
    N(HGM_CTLCOLOR), N(HGM_SETFIELDBOLD), N(HGM_SETENDSTOP), N(HGM_RESETSIZES), N(HGM_GETFIELDNAME),
    N(HGM_GETFIELDNAMELEN), N(HGM_GETCELLTEXT), N(HGM_FINDFIELDFROM),
};

constexpr Named editMessages[] = {
    N(HEM_GETDATA), N(HEM_SETDATA), N(HEM_GETRECT), N(HEM_SETRECT), N(HEM_GETLIMIT), N(HEM_GETOVERWRITE),
    N(HEM_SETOVERWRITE), N(HEM_GETPASSWORDCHAR), N(HEM_SETPASSWORDCHAR), N(HEM_GETSCROLL), N(HEM_SETSCROLL),
    N(HEM_COMMIT), N(HEM_GETVALIDATOR), N(HEM_SETVALIDATOR), N(HEM_VALIDATE), N(HEM_GETSELTEXT), N(HEM_GETMAX),
    N(HEM_SETMAX), N(HEM_GETMIN), N(HEM_SETMIN), N(HEM_REFOCUS), N(HEM_SETREADONLY), N(HEM_GETBRUSH), N(HEM_SETBRUSH),
    N(HEM_GETFORMAT), N(HEM_SETFORMAT), N(HEM_GETFOCUSBRUSH), N(HEM_SETFOCUSBRUSH), N(HEM_GETCOLOR), N(HEM_SETCOLOR),
    N(HEM_GETCLASS), N(HEM_GETDATASIZE), N(HEM_GETTYPE), N(HEM_LINKDATA), N(HEM_GETFLAGS), N(HEM_SETFLAGS),
    N(HEM_GETTEXTPTR), N(HEM_GETFORMATPTR),
};

constexpr Named comboMessages[] = {
    N(HCM_CHILDFOCUS), N(HCM_CHILDBLUR), N(HCM_SYSKEY), N(HCM_GETDROPHEIGHT), N(HCM_SETDROP), N(HCM_GETDROPWIDTH),
    N(HCM_SETDROPWIDTH), N(HCM_SETLIST), N(HCM_SETOPTIONS), N(CB_SHOWDROPDOWN), N(CB_SETCURSEL), N(CB_GETCURSEL),
};

constexpr Named buttonMessages[] = {
    N(HBM_GETPICPOS), N(HBM_GETPIC), N(HBM_GETPICCOUNT), N(HBM_GETPICKEY), N(HBM_GETRELPOS), N(HBM_GETSOUND),
    N(HBM_GETTEXTPOS), N(HBM_GETKIND), N(HBM_SETPICPOS), N(HBM_SETPIC), N(HBM_SETPICKEY), N(HBM_SETRELPOS),
    N(HBM_SETSOUND), N(HBM_SETTEXTPOS), N(HBM_GETVALUE), N(HBM_SETVALUE), N(HBM_GETLINK), N(HBM_SETLINK),
    N(HBM_GETVALUESIZE), N(HBM_GETSTATECOUNT), N(HBM_ISGROUPEND), N(HBM_SETPICCOUNT), N(HBM_GETPALETTE), N(HBM_CLICK),
    N(HBM_GETBKBRUSH), N(HBM_SETBKBRUSH), N(HBM_GETTEXTCOLOR), N(HBM_SETTEXTCOLOR),
};

constexpr Named gridNotifications[] = {
    N(HGN_SETFOCUS), N(HGN_KILLFOCUS), N(HGN_MOVED), N(HGN_DBLCLK), N(HGN_DESTROY), N(HGN_RBUTTONDOWN),
    N(HGN_ABOVETOP), N(HGN_BELOWEND), N(HGN_NEWROW), N(HGN_ROWCHANGED), N(HGN_CELLCHANGED), N(HGN_ROWDELETING),
    N(HGN_COLSMOVED), N(HGN_HEIGHTCHANGED), N(HGN_WIDTHCHANGED), N(HGN_MOVING), N(HGN_EXTENDING), N(HGN_HSCROLLED),
    N(HGN_VSCROLLED), N(HGN_HRANGE), N(HGN_LAYOUT), N(HGN_EDITDONE), N(HGN_EDITFOCUS), N(HGN_NAVIGATE),
    N(HGN_NAVEXTRA), N(HGN_EDITBLUR), N(HGN_DROPOPEN), N(HGN_DROPCLOSE), N(HGN_DROPPICK), N(HGN_CHILDCHANGE),
};

constexpr Named editNotifications[] = {
    N(HEN_SETFOCUS), N(HEN_RETURN), N(HEN_ESCAPE), N(HEN_TAB), N(HEN_BACKTAB), N(HEN_DBLCLK), N(HEN_HELP),
    N(HEN_KILLFOCUS), N(HEN_CHANGE), N(HEN_UPDATE), N(HEN_MAXTEXT), N(HEN_HSCROLL), N(HEN_BADINPUT), N(HEN_BELOWMIN),
    N(HEN_ABOVEMAX),
};

constexpr Named comboNotifications[] = {
    N(HCN_SELCHANGE), N(HCN_DBLCLK), N(HCN_SETFOCUS), N(HCN_KILLFOCUS), N(HCN_EDITCHANGE), N(HCN_EDITUPDATE),
    N(HCN_DROPDOWN), N(HCN_CLOSEUP), N(HCN_SELENDOK), N(HCN_XBUTTON), N(HCN_ENTER), N(HCN_ESCAPE), N(HCN_TAB),
    N(HCN_BACKTAB),
};

constexpr Named buttonNotifications[] = { N(HBN_CLICKED), N(HBN_DBLCLK) };

// clang-format on
#undef N

const char* Find(std::span<const Named> list, UINT number)
{
    for (const Named& entry : list) {
        if (entry.number == number) {
            return entry.name;
        }
    }
    return nullptr;
}

bool IsEdit(const char* className)
{
    return className && std::strncmp(className, "HEdit", 5) == 0;
}

bool IsButton(const char* className)
{
    return className && std::strcmp(className, "HButt") == 0;
}

bool IsCombo(const char* className)
{
    return className && std::strcmp(className, "HComb") == 0;
}

std::span<const Named> MessagesOf(const char* className)
{
    if (IsButton(className)) {
        return buttonMessages;
    }
    if (IsCombo(className)) {
        return comboMessages;
    }
    return IsEdit(className) ? std::span<const Named>(editMessages) : std::span<const Named>(gridMessages);
}

std::span<const Named> NotificationsOf(const char* className)
{
    if (IsButton(className)) {
        return buttonNotifications;
    }
    if (IsCombo(className)) {
        return comboNotifications;
    }
    return IsEdit(className) ? std::span<const Named>(editNotifications) : std::span<const Named>(gridNotifications);
}

std::string NameOr(const char* name, const char* format, UINT number)
{
    if (name) {
        return name;
    }
    char text[16];
    std::snprintf(text, sizeof text, format, number);
    return text;
}

} // namespace

std::string MessageName(UINT message, const char* className)
{
    const char* name = Find(platformMessages, message);
    if (!name) {
        name = Find(commonMessages, message);
    }
    if (!name) {
        name = Find(MessagesOf(className), message);
    }
    return NameOr(name, "0x%04X", message);
}

std::string NotificationName(UINT code, const char* className)
{
    return NameOr(Find(NotificationsOf(className), code), "code %u", code);
}
