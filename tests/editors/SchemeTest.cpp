#include "tests/editors/SchemeTest.h"

namespace
{
constexpr char kTexts[] = R"([DLG_PRINT_SCHEME]
TITLE_FACT=Factory schemes
TITLE_USER=User schemes
SELECT_CONFIG=Choose configurations
ADD_SCHEME=New scheme
IDM_COPY_SCHEME=Copy to
TAB_COMMON=Common
TAB_MODE=Mode
TAB_ELC=Eclosion
TAB_INK_MUL=Multiple
TAB_INK_CUT=Cut
TAB_UV=Lamps
TAB_SAPP=Small
UNLIMIT=Any
SPEED_S=Slow
SPEED_M=Medium
SPEED_B=Quick
DIRECTION_L=Left
DIRECTION_R=Right
DIRECTION_D=Both
DISABLE=Off
ENABLE=On
WAVE=Wave
PRESET=preset
DOT_MODE1=Dots 1
DOT_MODE2=Dots 2
DOT_MODE3=Dots 3
DOT_MODE4=Dots 4
Template mode=Template
On off mode=Switch
Filter mode=Filter
ECL0_ID=Plain
ECL2_ID=Waves
ECL19_ID=Own
[DLG_CUSTOM_ECLOSION]
TITLE=Custom
IDC_RADIO_MODE1=First
IDC_RADIO_MODE2=Second
IDC_RADIO_MODE3=Third
)";
} // namespace

SchemeTest::SchemeTest()
{
    m_machine = SchemeMachine();
    m_language.WriteBytes(kTexts);
}

void SchemeTest::RemoveTexts()
{
    m_language.WriteBytes("");
}

void SchemeTest::InHost(const EditorWindow& editor, const std::function<void(IHostData&)>& action)
{
    editor.Op().OnUi([&] { action(*Host().Data()); });
    NewChanges();
}

const refhost::FactoryScheme& SchemeTest::Factory(std::size_t index)
{
    m_after = Machine();
    return m_after.factorySchemes.at(index);
}

const refhost::UserScheme& SchemeTest::User(std::size_t index)
{
    m_after = Machine();
    return m_after.userSchemes.at(index);
}
