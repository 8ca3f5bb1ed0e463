/* sample/standins/show_windows.c

   Stands in for a Windows game: shows the directory it was started in, its arguments and its environment, each on a
   line of its own and in UTF-8, and writes the same to output.txt in that directory. The last line is "end". */

#include <stdio.h>
#include <windows.h>

static FILE* file;

static void Say(const char* title, const wchar_t* text) {
    char line[32768];
    line[0] = 0;
    WideCharToMultiByte(CP_UTF8, 0, text, -1, line, sizeof line, NULL, NULL);
    printf("%s%s\n", title, line);
    if (file != NULL) {
        fprintf(file, "%s%s\n", title, line);
    }
}

int wmain(int count, wchar_t** arguments) {
    wchar_t directory[32768];
    wchar_t* entry;
    int i;
    file = fopen("output.txt", "wb");
    GetCurrentDirectoryW(sizeof directory / sizeof directory[0], directory);
    Say("DIRECTORY=", directory);
    Say("PROGRAM=", arguments[0]);
    for (i = 1; i < count; ++i) {
        Say("ARGUMENT=", arguments[i]);
    }
    for (entry = GetEnvironmentStringsW(); *entry != 0; entry += wcslen(entry) + 1) {
        Say("", entry);
    }
    Say("end", L"");
    return file != NULL && fclose(file) == 0 ? 0 : 1;
}
