// The lines with which every skin of the editor begins that has nothing set.
#pragma once

#include "support/program_version.h"

#include <QString>

namespace tarvel::test {

/// From the root to the system menu, of a skin of that name.
inline QString skinHead(const char* name) {
    return QStringLiteral("<Skin name=\"%1\">\n").arg(QLatin1String(name)) +
           QStringLiteral("\t<Information>\n\t\t<MadeUsing>Tarvel %1</MadeUsing>")
               .arg(QString::fromStdString(programVersion())) +
           QStringLiteral(R"(
	</Information>
	<Delays>
		<Title>0</Title>
		<Load>0</Load>
		<Saver>0</Saver>
	</Delays>
	<MessageBox>
		<BoxColor>0xFF182038</BoxColor>
		<BorderColor>0xFF7896C8</BorderColor>
		<TextColor>0xFFF0F4FF</TextColor>
		<ShadowColor>0xFF000000</ShadowColor>
	</MessageBox>
	<SystemMenu>
		<BoxColor>0xFF141C30</BoxColor>
		<BorderColor>0xFF7896C8</BorderColor>
		<TextColor>0xFFF0F4FF</TextColor>
		<SelectColor>0xFFFFD25A</SelectColor>
		<ValueColor>0xFFB0C8E8</ValueColor>
		<SelectValueColor>0xFFFFE8AA</SelectValueColor>
	</SystemMenu>
)");
}

} // namespace tarvel::test
