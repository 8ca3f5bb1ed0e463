/* sample/standins/game_spy.c

   Stands in for GameSpy 3D: a window with its title and its kind of class, whose copy command puts a server's line on
   the clipboard. Version 2 has the command in the menu that Alt+S opens, version 1 in that of Alt+E; "c" is the
   command.

     game_spy [TITLE [FILE [SECONDS]]]

   TITLE tells the version ("GameSpy 3D 2.20"). FILE holds what is copied, in the system's code page, by default
   copied.txt beside the program; without it, or with an empty one, the clipboard is emptied. The window closes by
   itself after SECONDS (600). */

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

#define COPY_COMMAND 100
#define LONGEST 65536

static const char* title = "GameSpy 3D 2.20";
static char own_file[MAX_PATH];
static const char* file_name = own_file;
static char text[LONGEST];

/* copied.txt beside the program. */
static void FindOwnFile(void) {
    char* slash;
    GetModuleFileNameA(NULL, own_file, sizeof own_file - 16);
    slash = strrchr(own_file, '\\');
    strcpy(slash != NULL ? slash + 1 : own_file, "copied.txt");
}

static size_t ReadText(void) {
    size_t length = 0;
    FILE* file = fopen(file_name, "rb");
    if (file != NULL) {
        length = fread(text, 1, sizeof text - 1, file);
        fclose(file);
    }
    text[length] = 0;
    return length;
}

static void Copy(HWND window) {
    const size_t length = ReadText();
    if (!OpenClipboard(window)) {
        return;
    }
    EmptyClipboard();
    if (length > 0) {
        HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, length + 1);
        memcpy(GlobalLock(memory), text, length + 1);
        GlobalUnlock(memory);
        SetClipboardData(CF_TEXT, memory);
    }
    CloseClipboard();
}

static void Paint(HWND window) {
    PAINTSTRUCT paint;
    RECT inside;
    HDC context = BeginPaint(window, &paint);
    GetClientRect(window, &inside);
    ReadText();
    DrawTextA(context, text, -1, &inside, DT_LEFT);
    EndPaint(window, &paint);
}

static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wide, LPARAM low) {
    switch (message) {
        case WM_COMMAND:
            if (LOWORD(wide) == COPY_COMMAND) {
                Copy(window);
            }
            return 0;
        case WM_PAINT:
            Paint(window);
            return 0;
        case WM_TIMER:
            DestroyWindow(window);
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcA(window, message, wide, low);
    }
}

static HMENU MakeMenu(void) {
    const int is_first = strstr(title, "2.") == NULL && strstr(title, "1.") != NULL;
    HMENU bar = CreateMenu();
    HMENU menu = CreatePopupMenu();
    AppendMenuA(menu, MF_STRING, COPY_COMMAND, "&Copy");
    AppendMenuA(menu, MF_STRING, COPY_COMMAND + 1, "&Refresh");
    AppendMenuA(bar, MF_POPUP, (UINT_PTR)menu, is_first ? "&Edit" : "&Server");
    return bar;
}

int main(int count, char** arguments) {
    WNDCLASSA kind = {0};
    MSG message;
    HWND window;
    UINT seconds = 600;
    FindOwnFile();
    if (count > 1) {
        title = arguments[1];
    }
    if (count > 2) {
        file_name = arguments[2];
    }
    if (count > 3) {
        seconds = (UINT)atoi(arguments[3]);
    }
    kind.lpfnWndProc = Handle;
    kind.hInstance = GetModuleHandleA(NULL);
    kind.hCursor = LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    kind.hbrBackground = (HBRUSH)(COLOR_WINDOW + 1);
    kind.lpszClassName = "Afx:400000:8:10008:0:0";
    RegisterClassA(&kind);
    window = CreateWindowA(kind.lpszClassName, title, WS_OVERLAPPEDWINDOW, 80, 80, 480, 240, NULL, MakeMenu(),
                           kind.hInstance, NULL);
    if (window == NULL) {
        return 1;
    }
    SetTimer(window, 1, seconds * 1000, NULL);
    ShowWindow(window, SW_SHOWNORMAL);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
