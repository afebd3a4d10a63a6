#include "shell/Form16.h"

Form16::Form16() {
    Command3D3.Click = [this] { S.UnloadMe(); };
}
