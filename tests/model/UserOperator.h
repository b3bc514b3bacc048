#pragma once

#include "tests/editors/drivers/UserEditor.h"
#include "tests/model/SchemeOperator.h"
#include "tests/model/UserModel.h"

class UserOperator : public SchemeOperator
{
public:
    UserOperator(const UserEditor& editor, UserModel& model, SeededRun& run);

protected:
    void ActBesides() override;
    void WorkOnOther(int dialog) override;

private:
    void RequireProposal(const AddUserSchemeDialog& dialog) const;

    const UserEditor& m_editor;
    UserModel& m_model;
};
